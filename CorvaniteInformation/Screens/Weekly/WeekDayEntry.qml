// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One featured entry of a day: its title, and its lane at the far end.
Item {
    id: entry

    required property dayEntryRow row

    implicitHeight: title.height

    AppText {
        id: title

        width: lane.visible ? square.x - 24 : parent.width
        text: entry.row.title
        maximumLineCount: InformationTheme.longestName
        elide: Text.ElideRight
        color: entry.row.resolved ? InformationTheme.ink : InformationTheme.ink3
    }

    LaneSquare {
        id: square

        anchors.verticalCenter: lane.verticalCenter
        x: lane.x - 6 - width
        visible: lane.visible
        color: entry.row.laneColor
    }

    AppText {
        id: lane

        x: parent.width - width
        anchors.baseline: title.baseline
        visible: entry.row.resolved
        text: entry.row.laneName
        textStyle: TypeScale.meta
        color: InformationTheme.ink2
        wrapMode: Text.NoWrap
    }
}
