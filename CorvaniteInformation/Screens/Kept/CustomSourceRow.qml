// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One thing that the reader handed in.
Pressable {
    id: control

    required property keptRow row
    /// A screen reader counts it.
    required property bool counted

    signal removed

    implicitHeight: content.y + content.height + 12

    Accessible.role: control.counted ? Accessible.ListItem : Accessible.Section
    Accessible.name: control.row.title
    Accessible.description: control.row.status

    Column {
        id: content

        x: 24
        y: 20
        width: parent.width - 48
        spacing: 8

        Column {
            width: parent.width
            spacing: 2

            EyebrowText {
                width: parent.width
                text: "你交给 Corvanite 的内容"
                color: InformationTheme.ink2
            }

            AppText {
                width: parent.width
                text: control.row.title
            }

            AppText {
                width: parent.width
                text: control.row.status
                textStyle: TypeScale.small
                color: InformationTheme.ink2
            }
        }

        QuietButton {
            x: -12
            text: "移除"
            Accessible.description: control.row.title
            onClicked: control.removed()
        }
    }

    FocusRing {
        visible: control.visualFocus
        controlRadius: InformationTheme.cardRadius
        inside: true
    }
}
