// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// Offers the newer build of the program, above the header; like it, it moves the window. When it goes
/// with the focus, that goes back to where it was when the banner came.
FocusScope {
    id: banner

    required property Window window
    required property FramePage page

    /// Takes the focus when the banner goes with it.
    required property Item home

    /// Kept while the banner closes.
    property string message

    implicitHeight: page.hasUpdate ? 44 : 0
    visible: implicitHeight > 0
    clip: true

    Accessible.role: Accessible.Pane
    Accessible.name: banner.message

    /// Whether a drag there moves the window.
    function isHandle(at: point): bool {
        return visible && contains(at) && childAt(at.x, at.y) !== actions;
    }

    Behavior on implicitHeight {
        NumberAnimation {
            duration: InformationTheme.bannerDuration
            easing.type: Easing.OutCubic
        }
    }

    FocusReturn {
        id: origin

        home: banner.home
    }

    Connections {
        target: banner.page.workbench

        function onAvailableUpdateChanged() {
            if (banner.activeFocus)
                origin.giveBack();
            else
                origin.remember(banner.Window.activeFocusItem);
        }
    }

    Rectangle {
        anchors.fill: parent
        color: InformationTheme.bannerWash
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
        textStyle: TypeScale.small
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
            activeFocusOnPress: false
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
            activeFocusOnPress: false
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
