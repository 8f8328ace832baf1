// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls

/// The margins of a window without a native frame: the line around it, and a drag there resizes it.
Item {
    id: edges

    required property Window window

    visible: window.visibility === Window.Windowed

    function contain(at: point): bool {
        return visible && childAt(at.x, at.y) instanceof WindowEdge;
    }

    Hairline {
        color: InformationTheme.hairStrong
    }

    Hairline {
        anchors.bottom: parent.bottom
        color: InformationTheme.hairStrong
    }

    Hairline {
        width: 1
        height: parent.height
        color: InformationTheme.hairStrong
    }

    Hairline {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: InformationTheme.hairStrong
    }

    Repeater {
        model: [Qt.LeftEdge, Qt.RightEdge, Qt.TopEdge, Qt.BottomEdge, Qt.TopEdge | Qt.LeftEdge, Qt.TopEdge | Qt.RightEdge, Qt.BottomEdge | Qt.LeftEdge, Qt.BottomEdge | Qt.RightEdge]

        WindowEdge {
            required property int modelData

            side: modelData
            window: edges.window
        }
    }
}
