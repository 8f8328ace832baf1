// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import CorvaniteInformation.Controls

/// A list makes just what is seen, and the Tab key stops at all of it.
TestCase {
    id: test

    name: "WayOfTabTest"
    when: windowShown
    visible: true
    width: 200
    height: 400

    /// A row of so many has a stop.
    property int distance: 10
    property int rowsMade: 0

    component Stop: Pressable {
        width: 100
        height: 40
    }

    Stop {
        id: before

        objectName: "before"
    }

    // As in the window: a pane is no stop of its own.
    Keys.onTabPressed: Window.activeFocusItem.nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)

    PaneList {
        id: list

        y: 50
        width: 200
        height: 300
        bottomMargin: 40
        model: 40

        delegate: FocusScope {
            id: place

            required property int index

            width: 200
            height: 90
            Component.onCompleted: ++test.rowsMade

            Stop {
                objectName: place.index
                focus: true
                activeFocusOnTab: place.index % test.distance === 5
            }
        }

        Stop {
            parent: list.contentItem
            y: list.originY + list.contentHeight
            objectName: "foot"
        }
    }

    Stop {
        id: after

        y: 360
        objectName: "after"
    }

    function init() {
        distance = 10;
        list.model = 40;
        list.lastStop = Qt.binding(() => list.count - 1);
        list.contentItem.forceActiveFocus();
        list.positionViewAtBeginning();
        list.forceLayout();
    }

    function focusedName(): string {
        return Window.activeFocusItem.objectName;
    }

    function walked(key: int, times: int): list<string> {
        const names = [focusedName()];
        for (let i = 0; i < times; ++i) {
            keyClick(key);
            names.push(focusedName());
        }
        return names;
    }

    function test_onAndBack() {
        compare(walked(Qt.Key_Tab, 6), ["", "5", "15", "25", "35", "foot", "after"]);
        compare(walked(Qt.Key_Backtab, 6), ["after", "foot", "35", "25", "15", "5", "before"]);
    }

    function test_backFromWhatIsNoLongerSeen() {
        walked(Qt.Key_Tab, 5);
        list.positionViewAtBeginning();
        compare(walked(Qt.Key_Backtab, 1), ["foot", "35"]);
    }

    function test_theRowsThatWereLookedThroughGo() {
        walked(Qt.Key_Tab, 2);
        tryVerify(() => !list.itemAtIndex(11));
        verify(list.itemAtIndex(15));
    }

    function test_noRowIsMadeThatIsNeitherSeenNorOnTheWay() {
        walked(Qt.Key_Tab, 1);
        const before = rowsMade;
        walked(Qt.Key_Tab, 1);
        // From row 6 on, and the rows that a step makes at once.
        verify(rowsMade - before <= 10 + 3);
    }

    function test_nothingIsMadeBeyondTheLastStop() {
        walked(Qt.Key_Tab, 1);
        list.lastStop = 5;
        compare(walked(Qt.Key_Tab, 1), ["5", "foot"]);
    }

    function test_aStopThatIsVeryFarAwayIsLeftOut() {
        distance = 5000;
        list.model = 10000;
        walked(Qt.Key_Tab, 1);
        const before = rowsMade;
        compare(walked(Qt.Key_Tab, 1), ["5", "foot"]);
        verify(rowsMade < before + 60);
    }
}
