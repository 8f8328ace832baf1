// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// A side or a corner of a window: a drag there resizes it.
MouseArea {
    id: edge

    required property Window window
    /// Where it is: at one side of the window, or at two that make a corner. Not a set of `Qt.Edge`s:
    /// to take one apart while the window is made, the engine of Qt 6.4 reads every enumeration of Qt.
    property bool atLeft: false
    property bool atRight: false
    property bool atTop: false
    property bool atBottom: false

    readonly property bool atSide: atLeft || atRight
    readonly property bool atCorner: atSide && (atTop || atBottom)
    readonly property int thickness: atCorner ? 12 : 6

    function edges(): int {
        return (atLeft ? Qt.LeftEdge : 0) | (atRight ? Qt.RightEdge : 0) | (atTop ? Qt.TopEdge : 0) | (atBottom ? Qt.BottomEdge : 0);
    }

    x: atRight ? parent.width - width : 0
    y: atBottom ? parent.height - height : 0
    width: atSide ? thickness : parent.width
    height: atTop || atBottom ? thickness : parent.height
    cursorShape: {
        if (atCorner)
            return atLeft === atTop ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor;
        return atSide ? Qt.SizeHorCursor : Qt.SizeVerCursor;
    }
    // The drag is the desktop's, which may keep the release to itself.
    onPressed: {
        edge.window.startSystemResize(edges());
        visible = false;
        visible = true;
    }
}
