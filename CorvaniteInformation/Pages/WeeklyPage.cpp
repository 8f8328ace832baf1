// SPDX-License-Identifier: Apache-2.0

#include "WeeklyPage.h"

namespace {

QList<WeeklyPlace> weeklyRows(const InformationModel& workbench)
{
    const auto currentWeekId =
        WeeklyDigest::beijingWeekOfDay(WeeklyDigest::beijingToday(workbench.now()));
    const auto& index = workbench.signalIndex();
    QList<WeeklyPlace> rows;
    for (const auto& week : workbench.weeklyWeeks()) {
        rows.append(
            {.isDay = false, .week = WeekHeadRow::from(week, index, currentWeekId), .day = {}});
        for (const auto& day : WeekDayRow::slicesOf(week, index)) {
            rows.append({.isDay = true, .week = {}, .day = day});
        }
    }
    return rows;
}

} // namespace

void WeeklyPage::follow(const InformationModel& workbench)
{
    connect(&workbench, &InformationModel::contentChanged, this, &WeeklyPage::refresh);
}

void WeeklyPage::show(const InformationModel& workbench)
{
    m_rows.setRows(weeklyRows(workbench));
    m_empty = m_rows.rows().isEmpty();
}
