// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The head of the today surface: what there is to read, the lane filter, and what there is to say
/// when the reader has adjusted the selection or nothing is left of it.
Column {
    id: intro

    required property TodayPage page

    PageIntro {
        width: parent.width
        bottomPadding: 20
        eyebrow: intro.page.eyebrow
        title: intro.page.title
        lead: intro.page.lead
    }

    LaneFilterBar {
        width: parent.width
        page: intro.page
    }

    Optional {
        when: intro.page.adjusted

        Column {
            width: intro.width
            topPadding: 16

            PreferenceStatus {
                width: parent.width
                text: intro.page.preferenceStatus
                onResetPressed: intro.page.workbench.resetPreferences()
            }
        }
    }

    Optional {
        when: intro.page.laneEmpty

        Column {
            width: intro.width
            topPadding: 72
            bottomPadding: 40

            EmptyCollectionView {
                width: parent.width
                title: "这一类今天没有条目"
                message: "其他类别里还有值得看的内容。"
                action: "看全部"
                onPerform: intro.page.selectLane("")
            }
        }
    }

    Optional {
        when: intro.page.empty

        Column {
            width: intro.width
            topPadding: 72
            bottomPadding: 40

            EmptyCollectionView {
                width: parent.width
                title: "今天暂时没有剩余条目"
                message: "重置内容调整即可重新查看今天的完整精选。"
                action: "重置内容调整"
                onPerform: intro.page.workbench.resetPreferences()
            }
        }
    }
}
