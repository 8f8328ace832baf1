#include "LaneChipRow.h"

LaneChipRow LaneChipRow::from(std::optional<InformationLane> lane, qsizetype count, bool selected)
{
    LaneChipRow row;
    row.lane = lane ? QString(rawValue(*lane)) : QString();
    row.text = (lane ? displayName(*lane) : u"全部"_qs) + u' ' + QString::number(count);
    if (lane) {
        const auto [red, green, blue] = accent(*lane);
        row.square = QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green),
                                      static_cast<float>(blue));
    }
    row.selected = selected;
    return row;
}
