// SPDX-License-Identifier: Apache-2.0

#include "ArchiveDayRow.h"

#include "ArchiveDateLabels.h"
#include "DaySlices.h"

#include <utility>

QList<ArchiveDayRow> ArchiveDayRow::slicesOf(const SelectionDay& day,
                                             const QList<InformationSignal>& focusSignals,
                                             const QString& packDay)
{
    QList<DayEntryRow> entries;
    entries.reserve(focusSignals.size());
    for (const auto& signal : focusSignals) {
        entries.append(DayEntryRow::from(signal, entries.size() + 1));
    }

    ArchiveDayRow row;
    row.date = day.date;
    row.monthDay = ArchiveDateLabels::archiveMonthDayLabel(day.date);
    row.weekday = ArchiveDateLabels::archiveWeekdayLabel(day.date);
    row.isToday = day.date == packDay;
    row.closing = u"当日共 %1 条 · 先看 %2 条 · 查看这一天 →"_qs.arg(
        QString::number(day.totalShown), QString::number(day.focusSignalIds.size()));
    row.name = u"查看%1的完整精选"_qs.arg(row.monthDay);

    return daySlices(std::move(row), entries);
}
