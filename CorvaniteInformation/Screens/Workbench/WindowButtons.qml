import QtQuick
import CorvaniteInformation.Controls

/// Minimise, maximise and close, for a window without a native title bar.
Row {
    id: buttons

    required property Window window

    required property bool maximized

    signal maximizeToggled

    spacing: 8

    IconButton {
        side: 28
        restTint: InformationTheme.ink3
        iconPath: IconPaths.windowMinimize
        text: "最小化"
        onClicked: buttons.window.showMinimized()
    }

    IconButton {
        side: 28
        restTint: InformationTheme.ink3
        iconPath: buttons.maximized ? IconPaths.windowRestore : IconPaths.windowMaximize
        text: buttons.maximized ? "还原" : "最大化"
        onClicked: buttons.maximizeToggled()
    }

    IconButton {
        side: 28
        restTint: InformationTheme.ink3
        iconPath: IconPaths.close
        text: "关闭窗口"
        onClicked: buttons.window.close()
    }
}
