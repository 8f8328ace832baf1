// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A page as one scrolling column. What stands above and below the rows is declared on the list's
/// content and handed over as its head and foot: the list's own header and footer cannot be bound
/// components in 6.4.
PaneList {
    id: list

    property Item head: null
    property Item foot: null

    property int sideMargin: 24
    property int topSpace: width >= 1440 ? 40 : 32
    property int bottomSpace: 40

    readonly property real columnWidth: Math.min(760, width - 2 * sideMargin)
    readonly property real columnX: Math.round((width - columnWidth) / 2)

    topMargin: topSpace + (head?.height ?? 0)
    bottomMargin: bottomSpace + (foot?.height ?? 0)

    Binding {
        target: list.head
        property: "y"
        value: list.originY - (list.head?.height ?? 0)
    }

    Binding {
        target: list.foot
        property: "y"
        value: list.originY + list.contentHeight
    }

    /// Moves the focus from a row by the keys that walk a list. Whether the key was one of them.
    function walk(index: int, key: int): bool {
        switch (key) {
        case Qt.Key_Up:
            return focusRow(index - 1);
        case Qt.Key_Down:
            return focusRow(index + 1);
        case Qt.Key_Home:
            return focusRow(0);
        case Qt.Key_End:
            return focusRow(count - 1);
        default:
            return false;
        }
    }
}
