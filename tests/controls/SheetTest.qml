// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtTest
import CorvaniteInformation.Controls

TestCase {
    id: test

    name: "SheetTest"
    when: windowShown
    width: 600
    height: 400
    visible: true

    property bool wanted: false

    QuietButton {
        id: opener
        text: "打开"
    }

    MouseArea {
        id: below
        y: 300
        width: 600
        height: 100
    }

    SignalSpy {
        id: pressesBelow
        target: below
        signalName: "clicked"
    }

    QuietButton {
        id: neighbour
        y: 100
        text: "旁边"
    }

    Item {
        id: page
    }

    Sheet {
        id: sheet

        home: page
        blocked: QtObject {
            function contains(at: point): bool {
                return at.y < 300;
            }
        }
        title: "信息脉络"
        visible: test.wanted
        onAboutToHide: test.wanted = false

        Column {
            QuietButton {
                id: first
                focus: true
                text: "关闭"
            }

            QuietButton {
                id: second
                text: "看最新原文"
            }
        }
    }

    function initTestCase() {
        InformationTheme.reducedMotion = true;
    }

    function cleanup() {
        wanted = false;
        tryVerify(() => !sheet.visible);
    }

    function open() {
        wanted = true;
        tryVerify(() => sheet.opened);
    }

    function test_takesTheFocusAndHoldsTheTabKey() {
        opener.forceActiveFocus(Qt.TabFocusReason);
        open();
        verify(first.activeFocus);
        keyClick(Qt.Key_Tab);
        verify(second.activeFocus);
        keyClick(Qt.Key_Tab);
        verify(first.activeFocus);
        keyClick(Qt.Key_Backtab);
        verify(second.activeFocus);
    }

    function test_escapeClosesAndGivesTheFocusBack_data() {
        return [
            {tag: "opened by keyboard", reason: Qt.TabFocusReason, ring: true},
            {tag: "opened by pointer", reason: Qt.MouseFocusReason, ring: false}
        ];
    }

    function test_escapeClosesAndGivesTheFocusBack(row) {
        neighbour.forceActiveFocus();
        opener.forceActiveFocus(row.reason);
        open();
        verify(!opener.activeFocus);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !sheet.visible);
        verify(!wanted);
        verify(opener.activeFocus);
        compare(opener.visualFocus, row.ring);
    }

    function test_aPressOutsideChangesNothing() {
        open();
        mouseClick(test, 5, 5);
        mouseClick(neighbour);
        verify(sheet.opened);
        verify(!neighbour.activeFocus);
    }

    function test_aPressOnWhatItDoesNotBlockGoesThrough() {
        open();
        pressesBelow.clear();
        mouseClick(test, 5, 395);
        compare(pressesBelow.count, 1);
        verify(sheet.opened);
        verify(first.activeFocus);
    }

    function test_anOpenerThatIsHiddenGivesTheFocusToTheHome() {
        opener.forceActiveFocus(Qt.TabFocusReason);
        open();
        opener.visible = false;
        keyClick(Qt.Key_Escape);
        tryVerify(() => !sheet.visible);
        verify(page.activeFocus);
        opener.visible = true;
    }

    function test_aScreenReaderMeetsNoFrameAroundTheContent() {
        screenReader.start();
        open();
        verify(sheet.contentItem.parent.Accessible.ignored);
    }

    function test_opensAgainAfterEscape() {
        open();
        keyClick(Qt.Key_Escape);
        tryVerify(() => !sheet.visible);
        open();
    }

    function test_anOpenerThatWentIsNoFailure() {
        const gone = Qt.createQmlObject("import QtQuick; Item { focus: true }", test);
        gone.forceActiveFocus();
        open();
        gone.destroy();
        wait(0);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !sheet.visible);
    }
}
