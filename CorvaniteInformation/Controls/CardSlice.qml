// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// One row's slice of a card that runs through a list; the slices join to one card.
Item {
    id: slice

    required property bool first
    required property bool last
    /// A rule separates the row from the one above.
    property bool ruled: !first
    /// Where the rule begins.
    property real ruleX: 24
    default property alias content: body.data

    readonly property int overlap: InformationTheme.cardRadius

    implicitHeight: body.childrenRect.height
    clip: true

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: slice.first ? 0 : -slice.overlap
        anchors.bottomMargin: slice.last ? 0 : -slice.overlap
        radius: InformationTheme.cardRadius
        color: InformationTheme.card
        border.color: InformationTheme.hair
    }

    Item {
        id: body

        anchors.fill: parent
    }

    Hairline {
        x: slice.ruleX
        width: parent.width - x - 24
        visible: slice.ruled
    }
}
