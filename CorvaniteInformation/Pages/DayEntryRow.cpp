// SPDX-License-Identifier: Apache-2.0

#include "DayEntryRow.h"

#include "LaneColor.h"
#include "RunningNumber.h"

DayEntryRow DayEntryRow::from(const InformationSignal& signal, qsizetype number)
{
    DayEntryRow row;
    row.number = runningNumber(number);
    row.title = signal.title;
    row.resolved = true;
    row.laneColor = ::laneColor(signal.lane);
    row.laneName = displayName(signal.lane);
    return row;
}

DayEntryRow DayEntryRow::gone(const QString& signalId, qsizetype number)
{
    DayEntryRow row;
    row.number = runningNumber(number);
    row.title = u"已归档条目（%1）"_qs.arg(signalId);
    return row;
}
