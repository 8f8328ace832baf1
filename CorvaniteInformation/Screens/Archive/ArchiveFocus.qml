// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One featured signal on the page of an archived day.
Item {
    id: section

    required property archiveFocusRow row

    implicitHeight: content.y + content.height + 18

    Hairline {
        color: InformationTheme.hairStrong
    }

    AppText {
        y: 22
        width: 52
        text: section.row.rank
        textStyle: TypeScale.display
        color: InformationTheme.ink3
        wrapMode: Text.NoWrap
        fontSizeMode: Text.HorizontalFit
    }

    Column {
        id: content

        x: 64
        y: 28
        width: parent.width - x
        spacing: 8

        Column {
            width: parent.width
            bottomPadding: 4
            spacing: 4

            Row {
                width: parent.width
                spacing: 6

                LaneSquare {
                    y: (TypeScale.meta.lineHeight - height) / 2
                    color: section.row.laneColor
                }

                AppText {
                    width: parent.width - x
                    text: section.row.laneAndSource
                    textStyle: TypeScale.meta
                    color: InformationTheme.ink2
                    maximumLineCount: InformationTheme.longestName
                    elide: Text.ElideRight
                }
            }

            HeadingText {
                width: parent.width
                text: section.row.title
            }
        }

        LabelledText {
            width: parent.width
            label: "为什么入选："
            text: section.row.why
        }

        LabelledText {
            width: parent.width
            label: "保留意见："
            text: section.row.caveat
            color: InformationTheme.ink2
        }

        Item {
            width: parent.width
            height: source.height - 2

            SourceLink {
                id: source

                y: -2
                width: Math.min(implicitWidth, parent.width - original.width - 24)
                text: section.row.sourceLine
                address: section.row.address
                hasArrow: false
                restTint: InformationTheme.ink2
                Accessible.description: section.row.title
            }

            LinkText {
                id: original

                anchors.right: parent.right
                y: source.y
                visible: source.enabled
                text: "看原文"
                iconPath: IconPaths.openOutside
                Accessible.description: section.row.title
                onClicked: LinkOpener.open(section.row.address)
            }
        }
    }
}
