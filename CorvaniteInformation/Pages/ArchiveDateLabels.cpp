// SPDX-License-Identifier: Apache-2.0

#include "ArchiveDateLabels.h"

#include "ChineseDate.h"
#include "WeeklyDigest.h"

namespace {

QString formatted(const QString& day, QString (*format)(std::chrono::sys_days))
{
    const auto date = WeeklyDigest::utcMidnight(day);
    return date ? format(*date) : day;
}

} // namespace

QString ArchiveDateLabels::archiveMonthDayLabel(const QString& day)
{
    return formatted(day, ChineseDate::monthDay);
}

QString ArchiveDateLabels::archiveWeekdayLabel(const QString& day)
{
    return formatted(day, ChineseDate::weekday);
}

QString ArchiveDateLabels::archiveLongLabel(const QString& day)
{
    return formatted(day, ChineseDate::yearMonthDay);
}
