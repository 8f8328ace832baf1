// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// Minimise, maximise and close, for a window without a native title bar.
Row {
    id: buttons

    required property Window window

    readonly property bool maximized: window.visibility === Window.Maximized

    spacing: 8

    component WindowButton: IconButton {
        side: 28
        restTint: InformationTheme.ink3
        activeFocusOnPress: false
    }

    WindowButton {
        iconPath: IconPaths.windowMinimize
        text: "最小化"
        onClicked: buttons.window.showMinimized()
    }

    WindowButton {
        iconPath: buttons.maximized ? IconPaths.windowRestore : IconPaths.windowMaximize
        text: buttons.maximized ? "还原" : "最大化"
        onClicked: buttons.maximized ? buttons.window.showNormal() : buttons.window.showMaximized()
    }

    WindowButton {
        iconPath: IconPaths.close
        text: "关闭窗口"
        onClicked: buttons.window.close()
    }
}
