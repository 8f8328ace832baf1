#include "WeekEntryRow.h"

#include "LaneColor.h"

WeekEntryRow WeekEntryRow::from(const QString& signalId,
                                const QHash<QString, InformationSignal>& index)
{
    WeekEntryRow row;
    const auto signal = index.constFind(signalId);
    if (signal == index.cend()) {
        row.title = u"已归档条目（%1）"_qs.arg(signalId);
        return row;
    }
    row.title = signal->title;
    row.resolved = true;
    row.laneColor = ::laneColor(signal->lane);
    row.laneName = displayName(signal->lane);
    return row;
}
