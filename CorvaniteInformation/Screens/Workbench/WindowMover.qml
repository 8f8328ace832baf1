// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// A part of a window without a native title bar by which it is moved; a double click maximises or
/// restores it. A DragHandler of 6.4 would begin a second move after the first.
MouseArea {
    id: mover

    required property Window window

    property point grip

    // The window first catches up with the pointer. From then on the drag is the desktop's, which may
    // keep the release to itself.
    function move(by: point) {
        if (window.visibility === Window.Windowed) {
            window.x += by.x;
            window.y += by.y;
        }
        window.startSystemMove();
        visible = false;
        visible = true;
    }

    onPressed: event => grip = Qt.point(event.x, event.y)
    onPositionChanged: event => {
        const way = Qt.point(event.x - grip.x, event.y - grip.y);
        if (Math.max(Math.abs(way.x), Math.abs(way.y)) >= Qt.styleHints.startDragDistance)
            move(way);
    }
    onDoubleClicked: window.visibility === Window.Maximized ? window.showNormal() : window.showMaximized()
}
