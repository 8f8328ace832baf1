// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// Where every card comes from: the registry of sources and the rules by which they are used.
FocusScope {
    id: surface

    required property InformationModel workbench

    SourcesPage {
        id: page
    }

    Flickable {
        id: pane

        readonly property real columnWidth: Math.min(760, width - 48)

        anchors.fill: parent
        topMargin: width >= 1440 ? 40 : 32
        bottomMargin: 40
        contentHeight: column.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        focus: true

        Accessible.role: Accessible.List
        Accessible.name: "信源清单"

        Keys.forwardTo: [scroller]

        PaneScroller {
            id: scroller

            pane: pane
        }

        OverlayScrollBar {
            scroller: scroller
        }

        Column {
            id: column

            x: Math.round((pane.width - pane.columnWidth) / 2)
            width: pane.columnWidth
            spacing: 40

            PageIntro {
                width: parent.width
                eyebrow: page.eyebrow
                title: page.title
                lead: page.lead
            }

            RegistrySection {
                width: parent.width
                page: page
                workbench: surface.workbench
            }

            DirectCollectionSection {
                width: parent.width
                page: page
            }

            ContractSection {
                width: parent.width
                page: page
            }

            GovernanceNote {
                width: parent.width
                page: page
            }
        }
    }
}
