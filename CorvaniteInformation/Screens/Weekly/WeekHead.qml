// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The head of one week of the weekly digest.
Column {
    id: head

    required property weekHeadRow row

    bottomPadding: 16

    Item {
        width: parent.width
        height: summary.y + summary.height

        HeadingText {
            id: range

            width: Math.min(implicitWidth, parent.width - badge.width - 12)
            text: head.row.range
            textStyle: TypeScale.title1
        }

        Tag {
            id: badge

            anchors.left: range.right
            anchors.leftMargin: 12
            y: (TypeScale.title1.lineHeight - height) / 2
            text: head.row.badge
            kind: head.row.running ? Tag.Running : Tag.Neutral
        }

        AppText {
            id: summary

            anchors.top: range.bottom
            anchors.topMargin: 4
            width: parent.width
            text: head.row.summary
            textStyle: TypeScale.small
            color: InformationTheme.ink2
        }
    }
}
