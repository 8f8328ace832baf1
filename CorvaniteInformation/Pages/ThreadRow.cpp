// SPDX-License-Identifier: Apache-2.0

#include "ThreadRow.h"

#include "OpenableAddress.h"
#include "RowSlices.h"

#include <utility>

namespace {

ThreadRow rowOf(ThreadRow::Kind kind, bool first = true)
{
    ThreadRow row;
    row.kind = kind;
    row.first = first;
    return row;
}

} // namespace

QList<ThreadRow> ThreadRow::columnOf(const InformationSignal& signal)
{
    QList<ThreadRow> column;
    for (const auto& slice : RowSlices::of(TimelineNodeRow::timelineOf(signal))) {
        auto row = rowOf(Kind::Timeline, column.isEmpty());
        row.timeline = slice;
        column.append(row);
    }
    if (OpenableAddress::url(signal.originalURL)) {
        column.append(rowOf(Kind::Original));
    }
    if (signal.relatedSources.isEmpty()) {
        return column;
    }
    bool first = true;
    for (const auto& slice : RowSlices::of(RelatedSourceRow::listOf(signal.relatedSources))) {
        auto row = rowOf(Kind::Sources, std::exchange(first, false));
        row.sources = slice;
        column.append(row);
    }
    return column;
}
