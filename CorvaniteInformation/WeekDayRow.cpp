#include "WeekDayRow.h"

#include "WeeklyDigestLabels.h"

WeekDayRow WeekDayRow::from(const SelectionDay& day, const QHash<QString, InformationSignal>& index)
{
    WeekDayRow row;
    row.date = day.date;
    row.label = WeeklyDigestLabels::dayLabel(day.date);
    row.count = u"共 %1 条在册"_qs.arg(day.totalShown);
    row.entries.reserve(day.focusSignalIds.size());
    for (const QString& id : day.focusSignalIds) {
        row.entries.append(WeekEntryRow::from(id, index));
    }
    row.linkName = u"查看%1的完整精选"_qs.arg(row.label);
    return row;
}
