import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The top of the window, which also moves it: brand, surface switcher, actions, window buttons.
/// Below 1040 the switcher has a row of its own.
Rectangle {
    id: header

    required property Window window
    required property FramePage page
    readonly property InformationModel workbench: page.workbench
    property alias surfaces: switcher.surfaces

    readonly property bool wide: width >= 1040
    readonly property int sideMargin: wide ? 24 : 20
    readonly property real freeLeft: brand.x + brand.width
    readonly property real freeWidth: actions.x - freeLeft

    signal handInRequested

    implicitHeight: wide ? 64 : 112
    color: InformationTheme.canvas

    Accessible.role: Accessible.ToolBar

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

        // In the window's middle where that leaves room, else in the middle of the free space.
        readonly property real inWindow: (header.width - width) / 2
        readonly property real inFreeSpace: header.freeLeft + (header.freeWidth - width) / 2

        x: header.wide ? Math.round(header.width >= 1108 ? inWindow : inFreeSpace) : header.sideMargin
        y: header.wide ? 14 : 64
        width: header.wide ? implicitWidth : header.width - 2 * header.sideMargin
        current: header.workbench.surface
        stretched: !header.wide
        onChosen: surface => header.workbench.surface = surface
    }

    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: header.sideMargin
        y: header.wide ? 13 : 14
        height: 38
        spacing: 12

        Row {
            height: parent.height
            spacing: 8

            SyncButton {
                anchors.verticalCenter: parent.verticalCenter
                running: header.workbench.isSyncingPack
                help: header.page.syncHelp
                onClicked: header.workbench.refreshPackFromSite()
            }

            CitrineButton {
                text: "添加信息"
                iconPath: IconPaths.add
                iconStroke: 2.25
                onClicked: header.handInRequested()
            }
        }

        WindowButtons {
            anchors.verticalCenter: parent.verticalCenter
            window: header.window
            maximized: mover.maximized
            onMaximizeToggled: mover.toggleMaximized()
        }
    }

    Hairline {
        anchors.bottom: parent.bottom
    }
}
