// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The head of an archived day.
Column {
    id: head

    required property ArchivePage page

    function showWeekly() {
        head.page.workbench.surface = InformationModel.Surface.Weekly;
    }

    bottomPadding: 18

    PageIntro {
        width: parent.width
        bottomPadding: 10
        eyebrow: "ARCHIVE · 每日精选"
        title: head.page.day.title
        lead: head.page.day.lead
    }

    Flow {
        width: parent.width
        spacing: 24

        LinkText {
            visible: text !== ""
            text: head.page.day.weekLink
            onClicked: head.showWeekly()
        }

        LinkText {
            text: "本周周报 →"
            onClicked: head.showWeekly()
        }
    }
}
