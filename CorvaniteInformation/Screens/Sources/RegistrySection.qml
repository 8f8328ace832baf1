// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The registry of syndicated sources.
Column {
    id: section

    required property SourcesPage page
    required property InformationModel workbench

    spacing: 16

    Item {
        width: parent.width
        height: note.y + note.height

        SectionHeader {
            id: header

            width: parent.width - web.width - 24
            eyebrow: section.page.registryEyebrow
            subtitle: section.page.registrySubtitle
        }

        LinkText {
            id: web

            anchors.right: parent.right
            anchors.bottom: header.bottom
            anchors.bottomMargin: -2
            text: "网页版"
            iconPath: IconPaths.openOutside
            onClicked: LinkOpener.open(section.workbench.sitePage("sources"))
        }

        AppText {
            id: note

            anchors.top: header.bottom
            anchors.topMargin: 4
            width: parent.width
            text: section.page.registryNote
            textStyle: TypeScale.small
            color: InformationTheme.ink2
        }
    }

    Rectangle {
        width: parent.width
        height: rows.height
        radius: InformationTheme.cardRadius
        color: InformationTheme.card
        border.color: InformationTheme.hair

        Column {
            id: rows

            width: parent.width
            topPadding: 8
            bottomPadding: 8

            Repeater {
                model: section.page.registry

                SourceEntry {
                    required property sourceEntryRow modelData
                    required property int index

                    width: rows.width
                    row: modelData
                    ruled: index > 0
                }
            }
        }
    }
}
