// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DayEntryRow.h"
#include "RowSlices.h"

/// The day in slices of the view, in their order: each has its share of the entries, the first
/// opens the day and the last closes it.
template <typename Day>
QList<Day> daySlices(Day day, const QList<DayEntryRow>& entries)
{
    QList<Day> slices;
    for (const auto& slice : RowSlices::of(entries)) {
        day.entries = slice;
        slices.append(day);
    }
    slices.first().opensDay = true;
    slices.last().closesDay = true;
    return slices;
}
