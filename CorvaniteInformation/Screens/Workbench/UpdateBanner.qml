import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// Offers the newer build of the program, above the header; like it, it moves the window.
Rectangle {
    id: banner

    required property Window window
    required property FramePage page

    /// Kept while the banner closes.
    property string message

    implicitHeight: page.hasUpdate ? 44 : 0
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

    LastingBinding on message {
        when: banner.page.hasUpdate
        value: banner.page.updateText
    }

    WindowMover {
        anchors.fill: parent
        window: banner.window
    }

    Icon {
        x: 24
        anchors.verticalCenter: parent.verticalCenter
        path: IconPaths.newerBuild
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
            visible: banner.page.updateAddress !== ""
            help: banner.page.updateHelp
            restTint: InformationTheme.accent
            iconPath: IconPaths.openOutside
            iconSize: 14
            iconTrails: true
            onClicked: LinkOpener.open(banner.page.updateAddress)
        }

        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            text: "关闭更新提示"
            help: "关闭更新提示"
            iconPath: IconPaths.close
            onClicked: banner.page.workbench.dismissUpdate()
        }
    }

    Hairline {
        anchors.bottom: parent.bottom
    }
}
