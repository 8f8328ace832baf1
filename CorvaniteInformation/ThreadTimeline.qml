pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation

/// A signal's present state and its recorded events, joined by a line.
Column {
    id: timeline

    required property list<timelineRow> rows

    Accessible.role: Accessible.List

    Repeater {
        id: nodes

        model: timeline.rows

        TimelineNode {
            required property timelineRow modelData
            required property int index

            width: timeline.width
            row: modelData
            first: index === 0
            last: index === nodes.count - 1
        }
    }
}
