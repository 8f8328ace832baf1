pragma ComponentBehavior: Bound

import QtQuick

/// The margins of a window without a native frame: a drag there resizes it.
Item {
    id: edges

    required property Window window

    visible: window.visibility === Window.Windowed

    Repeater {
        model: [Qt.LeftEdge, Qt.RightEdge, Qt.TopEdge, Qt.BottomEdge, Qt.TopEdge | Qt.LeftEdge, Qt.TopEdge | Qt.RightEdge, Qt.BottomEdge | Qt.LeftEdge, Qt.BottomEdge | Qt.RightEdge]

        MouseArea {
            required property int modelData

            readonly property bool atLeft: modelData & Qt.LeftEdge
            readonly property bool atRight: modelData & Qt.RightEdge
            readonly property bool atTop: modelData & Qt.TopEdge
            readonly property bool atBottom: modelData & Qt.BottomEdge
            readonly property bool atSide: atLeft || atRight
            readonly property bool atCorner: atSide && (atTop || atBottom)
            readonly property int thickness: atCorner ? 12 : 6

            x: atRight ? edges.width - width : 0
            y: atBottom ? edges.height - height : 0
            width: atSide ? thickness : edges.width
            height: atTop || atBottom ? thickness : edges.height
            cursorShape: {
                if (atCorner)
                    return atLeft === atTop ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor;
                return atSide ? Qt.SizeHorCursor : Qt.SizeVerCursor;
            }
            onPressed: edges.window.startSystemResize(modelData)
        }
    }
}
