// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A list that scrolls on its own, by pointer and by the keys that turn pages, its rows made as they
/// come near.
ListView {
    id: list

    /// How far beyond its edges the list holds rows: far enough for a screen reader to go on. They are
    /// made at once. Rows that a cache buffer makes one by one would stand in no place until it is
    /// their turn, and are asked for by their old places after the list has shrunk.
    property int reach: RowReach.readAloud ? 2400 : 0

    /// The rows from the first to the last at which the Tab key can stop.
    property int firstStop: 0
    property int lastStop: count - 1

    readonly property alias scroller: scroller

    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0
    clip: true
    currentIndex: -1
    displayMarginBeginning: Math.max(reach, wayOfTab.above)
    displayMarginEnd: Math.max(reach, wayOfTab.below)
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false

    Keys.forwardTo: [scroller]

    ReadingOrder {
        id: order

        items: list.contentItem
    }

    WayOfTab {
        id: wayOfTab

        list: list
        scroller: scroller
        order: order
        firstStop: list.firstStop
        lastStop: list.lastStop
    }

    // A press on the ground takes the keyboard into the pane; what has the focus there keeps it.
    TapHandler {
        onPressedChanged: if (pressed && !list.activeFocus)
            list.contentItem.forceActiveFocus(Qt.MouseFocusReason)
    }

    PaneScroller {
        id: scroller

        pane: list
    }

    OverlayScrollBar {
        scroller: scroller
    }

    /// Gives the keyboard's focus to a row, which comes into sight from however far. Whether there is
    /// such a row.
    function focusRow(index: int): bool {
        if (index < 0 || index >= count)
            return false;
        positionViewAtIndex(index, ListView.Contain);
        if (index === 0)
            scroller.scrollToTop();
        itemAtIndex(index).forceActiveFocus(Qt.TabFocusReason);
        return true;
    }
}
