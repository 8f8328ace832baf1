#include "WeekDayRow.h"

#include "RowSlices.h"
#include "WeeklyDigestLabels.h"

QList<WeekDayRow> WeekDayRow::slicesOf(const SelectionDay& day,
                                       const QHash<QString, InformationSignal>& index)
{
    QList<WeekEntryRow> entries;
    entries.reserve(day.focusSignalIds.size());
    for (const QString& id : day.focusSignalIds) {
        entries.append(WeekEntryRow::from(id, index));
    }

    WeekDayRow row;
    row.date = day.date;
    row.label = WeeklyDigestLabels::dayLabel(day.date);
    row.count = u"共 %1 条在册"_qs.arg(day.totalShown);
    row.linkName = u"查看%1的完整精选"_qs.arg(row.label);

    QList<WeekDayRow> slices;
    for (auto& slice : RowSlices::of(entries)) {
        row.entries = std::move(slice);
        slices.append(row);
    }
    slices.first().opensDay = true;
    slices.last().closesDay = true;
    return slices;
}

QList<WeekDayRow> WeekDayRow::slicesOf(const WeeklyDigest::Week& week,
                                       const QHash<QString, InformationSignal>& index)
{
    QList<WeekDayRow> slices;
    for (const auto& day : week.days) {
        slices.append(slicesOf(day, index));
    }
    if (!slices.isEmpty()) {
        slices.first().opensWeek = true;
        slices.last().closesWeek = true;
    }
    return slices;
}
