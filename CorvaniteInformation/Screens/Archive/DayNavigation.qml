// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The ways on from an archived day: back, and to the neighbouring days.
Item {
    id: navigation

    required property ArchivePage page

    readonly property real sideRoom: (width - back.width) / 2

    implicitHeight: back.height

    Row {
        id: back

        x: -12
        spacing: 10

        QuietButton {
            text: "回往期索引"
            onClicked: navigation.page.workbench.closeArchiveDay()
        }

        QuietButton {
            text: "回今日工作台"
            onClicked: navigation.page.workbench.surface = InformationModel.Surface.Today
        }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: -12
        spacing: 10

        QuietButton {
            visible: text !== ""
            width: Math.min(implicitWidth, navigation.sideRoom)
            text: navigation.page.day.previousText
            onClicked: navigation.page.workbench.openArchiveDay(navigation.page.day.previousDate)
        }

        QuietButton {
            visible: text !== ""
            width: Math.min(implicitWidth, navigation.sideRoom)
            text: navigation.page.day.nextText
            onClicked: navigation.page.workbench.openArchiveDay(navigation.page.day.nextDate)
        }
    }
}
