// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringView>

#include <chrono>
#include <optional>

/// Times in whole seconds as "YYYY-MM-DDThh:mm:ssZ", the form that the workspace is stored in.
namespace StampText {

/// Of a time in the years 0 to 9999.
QString of(std::chrono::sys_seconds time);

/// Only what `of` writes.
std::optional<std::chrono::sys_seconds> read(QStringView text);

} // namespace StampText
