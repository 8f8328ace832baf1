#include "RailLineRow.h"

#include "RunningNumber.h"

RailLineRow RailLineRow::from(const InformationSignal& signal, bool seen, int position)
{
    RailLineRow row;
    row.signalId = signal.id;
    row.position = position;
    row.number = runningNumber(position + 1);
    row.title = signal.title;
    row.badge = seen ? u"已看过"_qs : u"新"_qs;
    row.seen = seen;
    row.name = u"打开脉络："_qs + signal.title;
    return row;
}
