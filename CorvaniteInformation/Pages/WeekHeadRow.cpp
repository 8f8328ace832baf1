// SPDX-License-Identifier: Apache-2.0

#include "WeekHeadRow.h"

#include "WeeklyDigestLabels.h"

WeekHeadRow WeekHeadRow::from(const WeeklyDigest::Week& week,
                              const QHash<QString, InformationSignal>& index,
                              const std::optional<QString>& currentWeekId)
{
    WeekHeadRow row;
    row.weekId = week.weekId;
    row.range = WeeklyDigestLabels::range(week.monday, week.sunday);
    row.running = week.weekId == currentWeekId;
    row.badge = WeeklyDigestLabels::badge(row.running);
    row.summary = WeeklyDigestLabels::summary(week, index);
    return row;
}
