// SPDX-License-Identifier: Apache-2.0

#include "LaneChipRow.h"

#include "LaneColor.h"

LaneChipRow LaneChipRow::from(std::optional<InformationLane> lane, qsizetype count, bool selected)
{
    LaneChipRow row;
    row.lane = lane ? QString(rawValue(*lane)) : QString();
    row.text = (lane ? displayName(*lane) : u"全部"_qs) + u' ' + QString::number(count);
    if (lane) {
        row.square = laneColor(*lane);
    }
    row.selected = selected;
    return row;
}
