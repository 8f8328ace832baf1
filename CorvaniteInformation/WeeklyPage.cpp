#include "WeeklyPage.h"

namespace {

QList<WeekRow> weekRows(const InformationModel& workbench)
{
    const auto currentWeekId =
        WeeklyDigest::beijingWeekOfDay(WeeklyDigest::beijingToday(workbench.now()));
    QList<WeekRow> rows;
    rows.reserve(workbench.weeklyWeeks().size());
    for (const auto& week : workbench.weeklyWeeks()) {
        rows.append(WeekRow::from(week, workbench.signalIndex(), currentWeekId));
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
    m_weeks.setRows(weekRows(workbench));
    const bool empty = m_weeks.rows().isEmpty();
    if (m_empty != empty) {
        m_empty = empty;
        Q_EMIT emptyChanged();
    }
}
