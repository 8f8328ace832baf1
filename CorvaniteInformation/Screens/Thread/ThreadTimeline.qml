// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Pages

/// A slice of a signal's present state and its recorded events, joined by a line.
Column {
    id: timeline

    required property threadRow row

    Accessible.role: Accessible.List

    Repeater {
        model: timeline.row.timeline

        TimelineNode {
            required property timelineNodeRow modelData

            width: timeline.width
            row: modelData
        }
    }
}
