#include "ArchiveEntryRow.h"

#include "RunningNumber.h"

ArchiveEntryRow ArchiveEntryRow::from(const InformationSignal& signal, qsizetype number)
{
    ArchiveEntryRow row;
    row.number = runningNumber(number);
    row.title = signal.title;
    row.lane = u" · "_qs + displayName(signal.lane);
    return row;
}
