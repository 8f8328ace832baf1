// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <chrono>
#include <optional>

/// Days as "YYYY-MM-DD".
namespace DayText {

/// Years beyond four digits are written whole.
QString of(std::chrono::sys_days day);

/// A day past its month's end rolls over. Superfluous hyphens are passed over.
std::optional<std::chrono::sys_days> read(QStringView text);

/// Year, month and day as they stand between the hyphens; nothing where there are not three texts.
std::optional<std::array<QStringView, 3>> pieces(QStringView text);

} // namespace DayText
