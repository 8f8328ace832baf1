// SPDX-License-Identifier: Apache-2.0

#include "TimelineNodeRow.h"

QList<TimelineNodeRow> TimelineNodeRow::timelineOf(const InformationSignal& signal)
{
    QList<TimelineNodeRow> rows;
    rows.reserve(signal.timeline.size() + 1);

    TimelineNodeRow now;
    now.date = u"现在"_qs;
    now.summary = signal.summary;
    now.isNow = true;
    rows.append(now);

    for (const auto& event : signal.timeline) {
        TimelineNodeRow row;
        row.date = event.dateLabel;
        row.summary = event.summary;
        row.source = event.source;
        rows.append(row);
    }
    rows.last().isLast = true;
    return rows;
}

QString TimelineNodeRow::name() const
{
    const auto text = date + u'：' + summary;
    return source.isEmpty() ? text : text + u'（' + source + u'）';
}
