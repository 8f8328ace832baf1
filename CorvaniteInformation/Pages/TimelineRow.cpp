#include "TimelineRow.h"

QList<TimelineRow> TimelineRow::timelineOf(const InformationSignal& signal)
{
    QList<TimelineRow> rows;
    rows.reserve(signal.timeline.size() + 1);

    TimelineRow now;
    now.date = u"现在"_qs;
    now.summary = signal.summary;
    now.isNow = true;
    rows.append(now);

    for (const auto& event : signal.timeline) {
        TimelineRow row;
        row.date = event.dateLabel;
        row.summary = event.summary;
        row.source = event.source;
        rows.append(row);
    }
    rows.last().isLast = true;
    return rows;
}
