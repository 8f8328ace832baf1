// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SelectionDay.h"

#include <QList>
#include <QString>

#include <chrono>
#include <optional>

/// Selection days folded into ISO 8601 weeks. Day texts are YYYY-MM-DD, days at UTC+8 that are
/// handled as UTC dates.
namespace WeeklyDigest {

struct Week
{
    /// "YYYY-Www": week-numbering year and week number.
    QString weekId;
    QString monday;
    QString sunday;
    /// Oldest first.
    QList<SelectionDay> days;

    friend bool operator==(const Week&, const Week&) = default;
};

/// Newest week first; days whose date does not read are left out.
QList<Week> weeks(const QList<SelectionDay>& days);

/// The date at UTC+8.
/// @param now seconds since 1970-01-01T00:00:00Z
QString beijingToday(double now);

/// The id of the week that the day belongs to; nothing when the day does not read.
std::optional<QString> beijingWeekOfDay(QStringView day);
std::optional<QString> mondayOfWeek(QStringView day);
std::optional<QString> sundayOfWeek(QStringView day);

/// Midnight of the day at UTC; a day past its month's end rolls over.
std::optional<std::chrono::sys_days> utcMidnight(QStringView day);

/// Monday 0 to Sunday 6: the days back to the week's Monday.
int isoWeekday(std::chrono::sys_days day);

/// YYYY-MM-DD.
QString dayString(std::chrono::sys_days day);

} // namespace WeeklyDigest
