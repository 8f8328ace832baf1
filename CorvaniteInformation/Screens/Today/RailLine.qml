// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One line of the list of everything. A press opens the signal's thread.
AppButton {
    id: line

    required property railLineRow row
    /// How many lines the list has.
    required property int count
    /// The one line of the list at which the Tab key stops.
    required property bool tabStop

    /// How far the ground stands out beyond the texts at both sides.
    readonly property int overhang: 12

    /// The focus is to go to the line that many lines further.
    signal stepped(by: int)

    implicitHeight: title.height + 16
    radius: InformationTheme.rowRadius
    ringInside: true
    ground: down ? InformationTheme.rowPressed : hovered ? InformationTheme.rowHover : "transparent"
    activeFocusOnTab: tabStop || activeFocus

    Accessible.name: line.row.name
    Accessible.description: line.row.badge

    Keys.onUpPressed: if (row.position > 0)
        stepped(-1)
    Keys.onDownPressed: if (row.position < count - 1)
        stepped(1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            stepped((event.key === Qt.Key_Home ? 0 : count - 1) - row.position);
    }

    HandCursor {}

    AppText {
        id: number

        x: line.overhang
        y: 8
        width: Math.max(22, implicitWidth)
        text: line.row.number
        textStyle: TypeScale.meta
        color: InformationTheme.ink3
        wrapMode: Text.NoWrap
    }

    AppText {
        id: title

        x: number.x + number.width + 8
        y: 8
        width: badge.x - 12 - x
        text: line.row.title
        textStyle: TypeScale.small
        maximumLineCount: 2
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    AppText {
        id: badge

        x: parent.width - line.overhang - width
        y: 8
        text: line.row.badge
        textStyle: line.row.seen ? TypeScale.meta : TypeScale.metaBold
        color: line.row.seen ? InformationTheme.ink3 : InformationTheme.accent
        wrapMode: Text.NoWrap
    }
}
