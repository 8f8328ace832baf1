// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The line above a card's title: what kind of news it is, from which lane, how fresh, and whether
/// the reader has seen it.
Row {
    id: meta

    required property signalCardRow row

    spacing: 8

    component Dot: Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 3
        height: 3
        radius: 1.5
        color: Qt.alpha(InformationTheme.control, 0.75)
    }

    AppText {
        text: meta.row.kindTag
        textStyle: TypeScale.metaBold
        color: meta.row.isUpdate ? InformationTheme.accent : InformationTheme.ink
    }

    Dot {}

    AppText {
        text: meta.row.laneName
        textStyle: TypeScale.meta
        color: InformationTheme.ink2
    }

    Dot {}

    AppText {
        width: Math.min(Math.max(16, Math.ceil(implicitWidth)), Math.floor(meta.width - x - 72))
        wrapMode: Text.NoWrap
        text: meta.row.timeLabel
        textStyle: TypeScale.meta
        color: InformationTheme.ink2
        maximumLineCount: 1
        elide: Text.ElideRight
    }

    Optional {
        when: meta.row.seen

        Tag {
            text: "已看过"
        }
    }
}
