// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// The dates of archived days. A day is YYYY-MM-DD; a text that does not read as one comes back
/// unchanged.
namespace ArchiveDateLabels {

/// "8月27日".
QString archiveMonthDayLabel(const QString& day);

/// "星期四".
QString archiveWeekdayLabel(const QString& day);

/// "2026年8月27日".
QString archiveLongLabel(const QString& day);

} // namespace ArchiveDateLabels
