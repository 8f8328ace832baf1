// SPDX-License-Identifier: Apache-2.0

#include "WeekDayRow.h"

#include "DaySlices.h"
#include "WeeklyDigestLabels.h"

#include <utility>

QList<WeekDayRow> WeekDayRow::slicesOf(const SelectionDay& day,
                                       const QHash<QString, InformationSignal>& index)
{
    QList<DayEntryRow> entries;
    entries.reserve(day.focusSignalIds.size());
    for (const QString& id : day.focusSignalIds) {
        const auto signal = index.constFind(id);
        const auto number = entries.size() + 1;
        entries.append(signal == index.cend() ? DayEntryRow::gone(id, number)
                                              : DayEntryRow::from(*signal, number));
    }

    WeekDayRow row;
    row.date = day.date;
    row.label = WeeklyDigestLabels::dayLabel(day.date);
    row.count = u"共 %1 条在册"_qs.arg(day.totalShown);
    row.linkName = u"查看%1的完整精选"_qs.arg(row.label);

    return daySlices(std::move(row), entries);
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
