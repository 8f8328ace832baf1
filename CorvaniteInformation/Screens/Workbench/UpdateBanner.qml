import QtQuick
import QtQuick.Window
import CorvaniteInformation.Controls
import CorvaniteInformation.State

/// Offers the newer build of the program, above the header; like it, it moves the window.
Rectangle {
    id: banner

    required property Window window
    required property InformationModel workbench

    /// Kept while the banner closes.
    property string message: ""

    implicitHeight: workbench.hasAvailableUpdate ? 44 : 0
    visible: implicitHeight > 0
    clip: true
    color: InformationTheme.bannerWash

    Accessible.role: Accessible.Pane

    Behavior on implicitHeight {
        NumberAnimation {
            duration: InformationTheme.bannerDuration
            easing.type: Easing.OutCubic
        }
    }

    Binding {
        target: banner
        property: "message"
        value: banner.workbench.availableUpdateText
        when: banner.workbench.hasAvailableUpdate
        restoreMode: Binding.RestoreNone
    }

    WindowMover {
        anchors.fill: parent
        window: banner.window
    }

    Icon {
        x: 24
        anchors.verticalCenter: parent.verticalCenter
        path: IconPaths.arrowDownCircleFill
        filled: true
        size: 18
        color: InformationTheme.accent
    }

    AppText {
        x: 50
        anchors.verticalCenter: parent.verticalCenter
        width: actions.x - x - 12
        text: banner.message
        textStyle: InformationTheme.small
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
    }

    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        QuietButton {
            anchors.verticalCenter: parent.verticalCenter
            text: "获取更新"
            visible: banner.workbench.availableUpdateAddress.length > 0
            help: banner.workbench.availableUpdateHelp
            restTint: InformationTheme.accent
            iconPath: IconPaths.arrowUpRight
            iconSize: 14
            iconTrails: true
            onClicked: LinkOpener.open(banner.workbench.availableUpdateAddress)
        }

        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            text: "关闭更新提示"
            help: "关闭更新提示"
            iconPath: IconPaths.xMark
            onClicked: banner.workbench.dismissUpdate()
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: InformationTheme.hair
    }
}
