// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <chrono>

/// Dates in Chinese, whatever the machine's language and time zone.
namespace ChineseDate {

/// "8月27日".
QString monthDay(std::chrono::sys_days day);

/// "2026年8月27日".
QString yearMonthDay(std::chrono::sys_days day);

/// "星期一" to "星期日".
QString weekday(std::chrono::sys_days day);

} // namespace ChineseDate
