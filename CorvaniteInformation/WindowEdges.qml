pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window

/// The margins of a window without a native frame: a drag there resizes it.
Item {
    id: edges

    required property Window window

    visible: window.visibility === Window.Windowed

    Repeater {
        model: [Qt.LeftEdge, Qt.RightEdge, Qt.TopEdge, Qt.BottomEdge, Qt.TopEdge | Qt.LeftEdge, Qt.TopEdge | Qt.RightEdge, Qt.BottomEdge | Qt.LeftEdge, Qt.BottomEdge | Qt.RightEdge]

        MouseArea {
            required property int modelData

            readonly property bool left: modelData & Qt.LeftEdge
            readonly property bool right: modelData & Qt.RightEdge
            readonly property bool top: modelData & Qt.TopEdge
            readonly property bool bottom: modelData & Qt.BottomEdge
            readonly property bool atCorner: (left || right) && (top || bottom)
            readonly property int thickness: atCorner ? 12 : 6

            x: right ? edges.width - width : 0
            y: bottom ? edges.height - height : 0
            width: left || right ? thickness : edges.width
            height: top || bottom ? thickness : edges.height
            cursorShape: atCorner ? (left === top ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor) : left || right ? Qt.SizeHorCursor : Qt.SizeVerCursor
            onPressed: edges.window.startSystemResize(modelData)
        }
    }
}
