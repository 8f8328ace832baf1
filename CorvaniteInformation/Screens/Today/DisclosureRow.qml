// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A row that opens and closes what follows it.
AppButton {
    id: row

    required property string note
    required property bool open

    implicitHeight: Math.max(64, texts.height + 24)
    radius: InformationTheme.cardRadius
    ringInside: true
    ground: down ? InformationTheme.well : "transparent"
    outline: hovered ? InformationTheme.control : InformationTheme.hairStrong

    Accessible.name: row.text + "，" + row.note
    Accessible.description: row.open ? "已展开" : "已收起"

    DisclosureAnnouncement {
        button: row
        description: row.Accessible.description
    }

    HandCursor {}

    Column {
        id: texts

        anchors.verticalCenter: parent.verticalCenter
        x: 24
        width: chevron.x - x - 16

        AppText {
            width: parent.width
            text: row.text
            textStyle: TypeScale.bodyBold
        }

        AppText {
            width: parent.width
            text: row.note
            textStyle: TypeScale.small
            color: InformationTheme.ink2
        }
    }

    Icon {
        id: chevron

        anchors.verticalCenter: parent.verticalCenter
        x: parent.width - 24 - width
        path: IconPaths.unfold
        size: 18
        color: InformationTheme.ink2
        rotation: row.open ? 180 : 0

        Behavior on rotation {
            NumberAnimation {
                duration: InformationTheme.chevronDuration
                easing.type: Easing.OutCubic
            }
        }
    }
}
