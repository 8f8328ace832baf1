// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// The short dates of the workbench.
namespace WorkbenchDateLabels {

/// "M月d日" at UTC+8 of an ISO 8601 time stamp, or of a day YYYY-MM-DD as it stands. A value that
/// reads as neither is shown unchanged.
QString label(const QString& value);

} // namespace WorkbenchDateLabels
