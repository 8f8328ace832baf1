// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtTest
import CorvaniteInformation.Controls

TestCase {
    id: test

    name: "OverlayScrollBarTest"
    when: windowShown
    visible: true
    width: 200
    height: 400

    Flickable {
        id: pane

        anchors.fill: parent
        topMargin: 30
        bottomMargin: 20
        contentHeight: 1550

        PaneScroller {
            id: scroller

            pane: pane
        }

        OverlayScrollBar {
            id: bar

            scroller: scroller
        }
    }

    // 1600 pixels show in 400: the thumb is a quarter of the track of 392.
    readonly property real lastY: 1550 + 20 - 400
    readonly property int middle: 193

    function init() {
        pane.contentHeight = 1550;
        scroller.scrollToTop();
    }

    function test_dragMovesTheContentByItsShare() {
        mousePress(test, middle, 50);
        mouseMove(test, middle, 50 + 147);
        fuzzyCompare(pane.contentY, -30 + 600, 1);
        mouseMove(test, middle, 390);
        compare(pane.contentY, lastY);
        mouseMove(test, middle, -500);
        compare(pane.contentY, -30);
        mouseRelease(test, middle, -500);
    }

    function test_pressBesideTheThumbBringsItThere() {
        mouseClick(test, middle, 200);
        fuzzyCompare(pane.contentY, -30 + 600, 1);
        mouseClick(test, middle, 398);
        compare(pane.contentY, lastY);
    }

    function test_isNotThereWhereNothingScrolls() {
        verify(bar.visible);
        pane.contentHeight = 200;
        verify(!bar.visible);
    }

    function test_showsWhileThePointerIsOnIt() {
        mouseMove(test, middle, 200);
        verify(bar.shown);
        mouseMove(test, 20, 200);
        verify(!bar.shown);
    }
}
