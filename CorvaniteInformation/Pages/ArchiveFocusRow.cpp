// SPDX-License-Identifier: Apache-2.0

#include "ArchiveFocusRow.h"

#include "LaneColor.h"
#include "OpenableAddress.h"
#include "RunningNumber.h"

ArchiveFocusRow ArchiveFocusRow::from(const InformationSignal& signal, qsizetype rank)
{
    ArchiveFocusRow row;
    row.rank = runningNumber(rank);
    row.laneColor = ::laneColor(signal.lane);
    row.laneAndSource = displayName(signal.lane) + u" · "_qs + signal.source;
    row.title = signal.title;
    row.why = signal.why;
    row.caveat = signal.caveat;
    row.address = OpenableAddress::from(signal.originalURL);
    row.sourceLine = (row.address.isEmpty() ? u"判断依据："_qs : u"看原文："_qs) + signal.source;
    return row;
}
