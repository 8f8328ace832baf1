// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// A part of a window without a native title bar by which it is moved; a double click maximises or
/// restores it. A DragHandler of 6.4 would begin a second move after the first.
MouseArea {
    id: mover

    required property Window window

    /// How far the pointer goes before it moves the window, in pixels. The window trails behind it by
    /// as much, so it is no more than the hand's unrest in a double click.
    readonly property real slack: 3
    property point grip

    onPressed: event => grip = Qt.point(event.x, event.y)
    // From here on the drag is the desktop's, which may keep the release to itself.
    onPositionChanged: event => {
        if (Math.max(Math.abs(event.x - grip.x), Math.abs(event.y - grip.y)) < slack)
            return;
        window.startSystemMove();
        visible = false;
        visible = true;
    }
    onDoubleClicked: window.visibility === Window.Maximized ? window.showNormal() : window.showMaximized()
}
