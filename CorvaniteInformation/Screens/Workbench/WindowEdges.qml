// SPDX-License-Identifier: Apache-2.0

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

    WindowEdge {
        window: edges.window
        atLeft: true
    }

    WindowEdge {
        window: edges.window
        atRight: true
    }

    WindowEdge {
        window: edges.window
        atTop: true
    }

    WindowEdge {
        window: edges.window
        atBottom: true
    }

    WindowEdge {
        window: edges.window
        atTop: true
        atLeft: true
    }

    WindowEdge {
        window: edges.window
        atTop: true
        atRight: true
    }

    WindowEdge {
        window: edges.window
        atBottom: true
        atLeft: true
    }

    WindowEdge {
        window: edges.window
        atBottom: true
        atRight: true
    }
}
