// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The top of the window, which also moves it: brand, surface switcher, actions, and room for the
/// window's own buttons. Below 1040 the switcher has a row of its own.
Rectangle {
    id: header

    required property Window window
    required property FramePage page
    /// How wide the window's own buttons are.
    required property real buttonsWidth
    readonly property InformationModel workbench: page.workbench
    property alias surfaces: switcher.surfaces

    readonly property bool wide: width >= 1040
    readonly property int sideMargin: wide ? 24 : 20
    /// Where the middle of what stands in its row is.
    readonly property real rowCenter: actions.y + actions.height / 2
    readonly property real freeLeft: brand.x + brand.width
    readonly property real freeWidth: actions.x - freeLeft

    signal handInRequested(bool byKeyboard)

    implicitHeight: wide ? 64 : 112
    color: InformationTheme.canvas

    Accessible.role: Accessible.ToolBar

    /// Whether a drag there moves the window.
    function isHandle(at: point): bool {
        const child = contains(at) ? childAt(at.x, at.y) : null;
        return child === mover || child === brand;
    }

    WindowMover {
        id: mover

        anchors.fill: parent
        window: header.window
    }

    BrandMark {
        id: brand

        x: header.sideMargin
        y: header.wide ? 14 : 15
    }

    SurfaceSwitcher {
        id: switcher

        x: header.wide ? Math.round(header.freeLeft + (header.freeWidth - width) / 2) : header.sideMargin
        y: header.wide ? 14 : 64
        width: header.wide ? implicitWidth : header.width - 2 * header.sideMargin
        current: header.workbench.surface
        stretched: !header.wide
        onChosen: surface => header.workbench.surface = surface
    }

    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: header.sideMargin + header.buttonsWidth + 12
        y: header.wide ? 13 : 14
        height: 38
        spacing: 8

        SyncButton {
            anchors.verticalCenter: parent.verticalCenter
            activeFocusOnPress: false
            running: header.workbench.isSyncingPack
            help: header.page.syncHelp
            onClicked: header.workbench.refreshPackFromSite()
        }

        CitrineButton {
            id: add

            activeFocusOnPress: false
            text: "添加信息"
            iconPath: IconPaths.add
            iconStroke: 2.25
            onClicked: header.handInRequested(add.visualFocus)
        }
    }

    Hairline {
        anchors.bottom: parent.bottom
    }
}
