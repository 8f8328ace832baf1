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

    /// The row that has gone from under the focus. It stays, unseen, until the focus goes on from the
    /// place that it went to: a screen reader says nothing of that place once the one before it is no
    /// more.
    property Item leaving: null
    /// The focus is on its way from the row that goes.
    property bool removing: false

    /// The keyboard was on the last row, which has gone.
    signal lastRowRemoved

    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0
    clip: true
    currentIndex: -1
    displayMarginBeginning: Math.max(reach, wayOfTab.above)
    // What is read first stands in the upper half.
    displayMarginEnd: RowReach.opening ? -height / 2 : Math.max(reach, wayOfTab.below)
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

    Connections {
        target: list.Window.window
        enabled: !list.removing

        function onActiveFocusItemChanged() {
            list.leaving = null;
        }
    }

    PaneScroller {
        id: scroller

        pane: list
    }

    OverlayScrollBar {
        scroller: scroller
    }

    /// Has the row go by `removal`. Where the keyboard was on it, it goes on with what takes the row's
    /// place.
    function removeRow(index: int, removal: var) {
        const byKeyboard = (Window.activeFocusItem as Pressable)?.visualFocus ?? false;
        removing = byKeyboard;
        leaving = byKeyboard ? itemAtIndex(index) : null;
        removal();
        if (byKeyboard && !focusRow(Math.min(index, count - 1)))
            lastRowRemoved();
        removing = false;
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
