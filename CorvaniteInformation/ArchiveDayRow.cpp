#include "ArchiveDayRow.h"

#include "ArchiveDateLabels.h"

ArchiveDayRow ArchiveDayRow::from(const SelectionDay& day,
                                  const QList<InformationSignal>& focusSignals,
                                  const QString& packDay)
{
    ArchiveDayRow row;
    row.date = day.date;
    row.monthDay = ArchiveDateLabels::archiveMonthDayLabel(day.date);
    row.weekday = ArchiveDateLabels::archiveWeekdayLabel(day.date);
    row.isToday = day.date == packDay;
    row.entries.reserve(focusSignals.size());
    for (const auto& signal : focusSignals) {
        row.entries.append(ArchiveEntryRow::from(signal, row.entries.size() + 1));
    }
    row.closing = u"当日共 %1 条 · 先看 %2 条 · 查看这一天 →"_qs.arg(
        QString::number(day.totalShown), QString::number(day.focusSignalIds.size()));
    row.name = u"查看%1的完整精选"_qs.arg(row.monthDay);
    return row;
}
