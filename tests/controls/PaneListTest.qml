// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import CorvaniteInformation.Controls

TestCase {
    id: test

    name: "PaneListTest"
    when: windowShown
    visible: true
    width: 200
    height: 400

    PaneList {
        id: list

        anchors.fill: parent
        focus: true
        topMargin: 30
        model: 40

        delegate: Item {
            required property int index

            width: list.width
            height: index === 0 ? 100 : 200
        }
    }

    readonly property real beginning: list.originY - list.topMargin

    function init() {
        InformationTheme.reducedMotion = true;
        list.topMargin = 30;
        keyClick(Qt.Key_Home);
        list.forceLayout();
        compare(list.contentY, beginning);
    }

    function cleanup() {
        InformationTheme.reducedMotion = false;
    }

    // Where the first row is not as high as the others, the list takes its beginning for another once
    // that row is gone, and went back there.
    function test_aLeapLeavesTheBeginning_data() {
        return [
            {tag: "Page Down", key: Qt.Key_PageDown},
            {tag: "End", key: Qt.Key_End}
        ];
    }

    function test_aLeapLeavesTheBeginning(data) {
        const before = list.contentY;
        keyClick(data.key);
        verify(list.contentY > before);
    }

    function test_untilTheWindowHasDrawnOnceTheUpperHalfIsEnough() {
        RowReach.opening = true;
        list.forceLayout();
        verify(list.itemAtIndex(1) !== null);
        compare(list.itemAtIndex(2), null);
        RowReach.opening = false;
        list.forceLayout();
        verify(list.itemAtIndex(2) !== null);
    }

    function test_whatIsAtTheTopStaysThereWhenTheRoomAboveItChanges() {
        list.topMargin = 80;
        compare(list.contentY, beginning);
        list.topMargin = 10;
        compare(list.contentY, beginning);
    }

    function test_whatIsScrolledStaysWhereItIsWhenTheRoomAboveTheTopChanges() {
        keyClick(Qt.Key_PageDown);
        const before = list.contentY;
        list.topMargin = 80;
        compare(list.contentY, before);
    }

    function test_pagesAddUpOnTheirWay() {
        InformationTheme.reducedMotion = false;
        const before = list.contentY;
        keyClick(Qt.Key_PageDown);
        keyClick(Qt.Key_PageDown);
        keyClick(Qt.Key_Up);
        verify(list.contentY < before + list.scroller.leap);
        tryCompare(list, "contentY", before + 2 * list.scroller.leap - list.scroller.line);
    }

    function test_aKeyThatIsHeldIsNeverMoreThanAPageAhead() {
        InformationTheme.reducedMotion = false;
        const before = list.contentY;
        const press = (key, held) => list.scroller.turn(key, Qt.NoModifier, held);
        press(Qt.Key_PageDown, false);
        press(Qt.Key_PageDown, true);
        press(Qt.Key_PageDown, true);
        compare(list.scroller.goal(), before + list.scroller.leap);
        press(Qt.Key_Up, true);
        compare(list.scroller.goal(), before + list.scroller.leap - list.scroller.line);
    }

    // The rows of many pages would be made in few frames.
    function test_aLongWayTakesLonger() {
        InformationTheme.reducedMotion = false;
        compare(list.scroller.durationOf(600), InformationTheme.pageDuration);
        compare(list.scroller.durationOf(6000), 1000);
        InformationTheme.reducedMotion = true;
        compare(list.scroller.durationOf(6000), 0);
    }

    function test_whatTakesTheListElsewhereEndsItsWay_data() {
        return [
            {tag: "a key", act: () => keyClick(Qt.Key_End)},
            {tag: "the scroll bar", act: () => list.scroller.scrollToShare(0.5)},
            {tag: "the focus", act: () => list.scroller.reveal(list.itemAtIndex(0), 0, 100)}
        ];
    }

    function test_whatTakesTheListElsewhereEndsItsWay(data) {
        InformationTheme.reducedMotion = false;
        keyClick(Qt.Key_PageDown);
        data.act();
        compare(list.scroller.goal(), list.contentY);
    }

    function test_aPageUpComesToTheBeginning() {
        keyClick(Qt.Key_PageDown);
        list.forceLayout();
        InformationTheme.reducedMotion = false;
        keyClick(Qt.Key_PageUp);
        tryVerify(() => list.contentY === list.scroller.goal());
        compare(list.contentY, beginning);
    }
}
