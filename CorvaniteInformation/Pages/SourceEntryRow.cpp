// SPDX-License-Identifier: Apache-2.0

#include "SourceEntryRow.h"

#include "OpenableAddress.h"
#include "RunningNumber.h"

SourceEntryRow SourceEntryRow::from(const InformationSourceEntry& entry, qsizetype number)
{
    SourceEntryRow row;
    row.number = runningNumber(number);
    row.name = entry.name;
    row.description = entry.kind + u"，"_qs + entry.take + u"。"_qs;
    row.address = OpenableAddress::from(entry.url);
    return row;
}
