// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One kept signal. A press anywhere but on its buttons opens the signal's thread.
AppButton {
    id: control

    required property keptRow row
    /// A screen reader counts it.
    required property bool counted

    signal opened
    signal removed

    implicitHeight: content.y + content.height + 12
    radius: InformationTheme.cardRadius
    ringInside: true
    ground: down ? InformationTheme.well : "transparent"

    Accessible.role: control.counted ? Accessible.ListItem : Accessible.Section
    Accessible.name: control.row.title
    Accessible.description: control.row.status

    onClicked: control.opened()

    HandCursor {}

    Column {
        id: content

        x: 24
        y: 20
        width: parent.width - 48
        spacing: 8

        Column {
            width: parent.width
            spacing: 2

            HeadingText {
                width: parent.width
                text: control.row.title
                textStyle: TypeScale.title3
            }

            AppText {
                width: parent.width
                text: control.row.status
                textStyle: TypeScale.small
                color: InformationTheme.ink2
                maximumLineCount: InformationTheme.longestName
                elide: Text.ElideRight
            }
        }

        Row {
            x: -12
            spacing: 2

            QuietButton {
                visible: control.row.address !== ""
                text: "看原文"
                Accessible.role: Accessible.Link
                Accessible.description: control.row.title
                onClicked: LinkOpener.open(control.row.address)
            }

            QuietButton {
                text: "看变化"
                Accessible.description: control.row.title
                onClicked: control.opened()
            }

            QuietButton {
                text: "移除"
                Accessible.description: control.row.title
                onClicked: control.removed()
            }
        }
    }
}
