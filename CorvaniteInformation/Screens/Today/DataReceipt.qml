// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// What went into today's selection, in figures.
Column {
    id: receipt

    required property TodayPage page

    Hairline {
        color: InformationTheme.hairStrong
    }

    Column {
        topPadding: 16
        bottomPadding: 8

        HeadingText {
            text: "数据回执"
            textStyle: TypeScale.captionBold
            color: InformationTheme.ink2
        }
    }

    Repeater {
        model: receipt.page.receiptRows

        Item {
            id: figure

            required property labelledTextRow modelData

            width: receipt.width
            height: 26

            Accessible.role: Accessible.StaticText
            Accessible.name: figure.modelData.name

            AppText {
                id: value

                width: Math.max(36, implicitWidth)
                text: figure.modelData.label
                textStyle: TypeScale.figure
                horizontalAlignment: Text.AlignRight
                wrapMode: Text.NoWrap
                Accessible.ignored: true
            }

            AppText {
                anchors.baseline: value.baseline
                x: value.width + 8
                text: figure.modelData.text
                textStyle: TypeScale.small
                color: InformationTheme.ink2
                wrapMode: Text.NoWrap
                Accessible.ignored: true
            }
        }
    }

    Column {
        width: parent.width
        topPadding: 8

        AppText {
            width: parent.width
            text: receipt.page.updatedText
            textStyle: TypeScale.caption
            color: InformationTheme.ink3
        }
    }
}
