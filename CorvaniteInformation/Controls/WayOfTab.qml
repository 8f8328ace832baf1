// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// Makes the rows of a list to which the Tab key goes on, right before it does. The list itself makes
/// just what is seen, and the key only finds rows that are there.
Item {
    id: way

    required property ListView list
    required property PaneScroller scroller
    required property ReadingOrder order
    /// Between which rows the key can stop.
    required property int firstStop
    required property int lastStop

    /// How far beyond its edges the list is to hold rows while they are made. They stay there until it
    /// is laid out again, and then the focus is where it goes.
    property int above: 0
    property int below: 0

    readonly property int step: 240
    /// Rows without a stop are not looked through any further.
    readonly property int farthest: 2400
    readonly property Item focused: scroller.focused

    Connections {
        target: RowReach
        enabled: way.list.visible

        function onTabPressed(forward: bool) {
            if (way.scroller.holds(way.focused))
                way.bringIntoSight();
            else if (!forward || !way.isPane(way.focused))
                return;
            if (forward)
                way.makeBelow();
            else
                way.makeAbove();
        }
    }

    function isPane(item: Item): bool {
        return item === list || item === list.contentItem;
    }

    /// The rows beside it are there then.
    function bringIntoSight() {
        const top = placeOf(focused);
        if (top > list.contentY + list.height || top + focused.height < list.contentY)
            scroller.reveal(focused, 0, focused.height);
    }

    function makeBelow() {
        while (list.displayMarginEnd < farthest && !list.itemAtIndex(lastStop) && next(true) > list.contentY + list.height + list.displayMarginEnd) {
            below = list.displayMarginEnd + step;
            list.forceLayout();
        }
        below = 0;
    }

    function makeAbove() {
        while (list.displayMarginBeginning < farthest && !list.itemAtIndex(firstStop) && next(false) < list.contentY - list.displayMarginBeginning) {
            above = list.displayMarginBeginning + step;
            list.forceLayout();
        }
        above = 0;
    }

    /// Where in the list the focus would go; beyond all rows where it would leave the list.
    function next(forward: bool): real {
        order.sort();
        const item = focused.nextItemInFocusChain(forward);
        if (scroller.holds(item))
            return placeOf(item) + (forward ? 0 : item.height);
        return forward ? Infinity : -Infinity;
    }

    function placeOf(item: Item): real {
        return item.mapToItem(list.contentItem, 0, 0).y;
    }
}
