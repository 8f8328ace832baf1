// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The head of the archive's index.
Column {
    id: head

    required property ArchivePage page

    function showWeekly() {
        head.page.workbench.surface = InformationModel.Surface.Weekly;
    }

    bottomPadding: 16
    spacing: 12

    PageIntro {
        width: parent.width
        bottomPadding: -4
        eyebrow: "ARCHIVE · 往期精选"
        title: "回看任何一天的 Corvanite。"
        lead: "每天的焦点内容按日期归档。你可以回看当时的判断、对照后来的变化，也可以检验 Corvanite 是否真的在替你挡住噪声。"
    }

    QuietButton {
        x: -leftPadding
        text: "切到周报精选"
        restTint: InformationTheme.accent
        onClicked: head.showWeekly()
    }

    Hairline {
        color: InformationTheme.hairStrong
    }

    Item {
        width: parent.width
        height: summary.height

        Flow {
            id: summary

            width: parent.width - weekly.width - 16
            topPadding: 4
            spacing: 16

            AppText {
                text: head.page.summary
                textStyle: TypeScale.title3
            }

            AppText {
                height: TypeScale.title3.lineHeight
                text: "每日焦点 + 全部条目，不可变归档。"
                textStyle: TypeScale.small
                color: InformationTheme.ink2
                verticalAlignment: Text.AlignVCenter
            }
        }

        LinkText {
            id: weekly

            anchors.right: parent.right
            y: 2
            text: "按周折叠的视角见周报精选 →"
            onClicked: head.showWeekly()
        }
    }
}
