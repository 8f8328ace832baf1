// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One node of a timeline: its day, what happened, and who says so.
Item {
    id: node

    required property timelineNodeRow row

    readonly property int axis: 6
    readonly property int nodeY: 12

    implicitHeight: Math.max(texts.height, date.y + date.height) + (row.isLast ? 0 : 16)

    // As of a SheetText.
    Accessible.role: Accessible.Paragraph
    Accessible.name: node.row.name

    Rectangle {
        x: node.axis
        y: node.row.isNow ? node.nodeY : 0
        width: 1
        height: (node.row.isLast ? node.nodeY : node.height) - y
        color: InformationTheme.hairStrong
    }

    Rectangle {
        x: node.axis - 4
        y: node.nodeY - 4
        width: 9
        height: 9
        radius: 4.5
        color: node.row.isNow ? InformationTheme.accent : InformationTheme.card
        border.color: node.row.isNow ? InformationTheme.accent : InformationTheme.control
    }

    AppText {
        id: date

        x: 24
        width: 92
        y: 2
        maximumLineCount: 4
        elide: Text.ElideRight
        text: node.row.date
        textStyle: node.row.isNow ? TypeScale.smallBold : TypeScale.small
        color: node.row.isNow ? InformationTheme.accent : InformationTheme.ink2
        Accessible.ignored: true
    }

    Column {
        id: texts

        x: 128
        width: parent.width - x
        spacing: 2

        AppText {
            width: parent.width
            text: node.row.summary
            Accessible.ignored: true
        }

        AppText {
            width: parent.width
            visible: text !== ""
            text: node.row.source
            textStyle: TypeScale.caption
            color: InformationTheme.ink2
            maximumLineCount: InformationTheme.longestName
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
