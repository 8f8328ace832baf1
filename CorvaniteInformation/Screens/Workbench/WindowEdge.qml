// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// A side or a corner of a window: a drag there resizes it.
MouseArea {
    id: edge

    required property Window window
    /// A `Qt.Edge`, or two that make a corner.
    required property int side

    readonly property bool atLeft: side & Qt.LeftEdge
    readonly property bool atRight: side & Qt.RightEdge
    readonly property bool atTop: side & Qt.TopEdge
    readonly property bool atBottom: side & Qt.BottomEdge
    readonly property bool atSide: atLeft || atRight
    readonly property bool atCorner: atSide && (atTop || atBottom)
    readonly property int thickness: atCorner ? 12 : 6

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
        edge.window.startSystemResize(side);
        visible = false;
        visible = true;
    }
}
