#include "ArchiveDayRow.h"

#include "ArchiveDateLabels.h"
#include "RowSlices.h"

QList<ArchiveDayRow> ArchiveDayRow::slicesOf(const SelectionDay& day,
                                             const QList<InformationSignal>& focusSignals,
                                             const QString& packDay)
{
    QList<ArchiveEntryRow> entries;
    entries.reserve(focusSignals.size());
    for (const auto& signal : focusSignals) {
        entries.append(ArchiveEntryRow::from(signal, entries.size() + 1));
    }

    ArchiveDayRow row;
    row.date = day.date;
    row.monthDay = ArchiveDateLabels::archiveMonthDayLabel(day.date);
    row.weekday = ArchiveDateLabels::archiveWeekdayLabel(day.date);
    row.isToday = day.date == packDay;
    row.closing = u"当日共 %1 条 · 先看 %2 条 · 查看这一天 →"_qs.arg(
        QString::number(day.totalShown), QString::number(day.focusSignalIds.size()));
    row.name = u"查看%1的完整精选"_qs.arg(row.monthDay);

    QList<ArchiveDayRow> slices;
    for (auto& slice : RowSlices::of(entries)) {
        row.entries = std::move(slice);
        slices.append(row);
    }
    slices.first().opensDay = true;
    slices.last().closesDay = true;
    return slices;
}
