// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtTest
import CorvaniteInformation.Controls
import CorvaniteInformation.Screens.Workbench

TestCase {
    id: test

    name: "SurfaceSwitcherTest"
    when: windowShown
    width: 800
    height: 200
    visible: true

    property int current: 0

    SurfaceSwitcher {
        id: switcher

        current: test.current
        onChosen: surface => test.current = surface
        surfaces: [
            SurfaceEntry {
                surface: 0
                label: "今天"
                iconPath: IconPaths.today
            },
            SurfaceEntry {
                surface: 1
                label: "已收下"
                iconPath: IconPaths.kept
            },
            SurfaceEntry {
                surface: 2
                label: "周报"
                iconPath: IconPaths.weekly
            }
        ]
    }

    Item {
        id: elsewhere
    }

    function init() {
        current = 0;
        elsewhere.forceActiveFocus();
    }

    function segments(): var {
        return Array.from(switcher.children[0].children).filter(child => child instanceof SurfaceSegment);
    }

    function test_roles() {
        compare(switcher.Accessible.role, Accessible.PageTabList);
        compare(segments().map(segment => segment.Accessible.name), ["今天", "已收下", "周报"]);
        compare(segments().map(segment => segment.Accessible.selected), [true, false, false]);
    }

    function test_chosenByPointerAndScreenReader() {
        mouseClick(segments()[2]);
        compare(current, 2);
        segments()[1].Accessible.pressAction();
        compare(current, 1);
        compare(segments().map(segment => segment.Accessible.selected), [false, true, false]);
    }

    function test_theArrowKeysChooseTheNeighbours() {
        segments()[0].forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Left);
        compare(current, 0);
        keyClick(Qt.Key_Right);
        compare(current, 1);
        verify(segments()[1].visualFocus);
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Right);
        compare(current, 2);
        verify(segments()[2].visualFocus);
        keyClick(Qt.Key_Left);
        compare(current, 1);
    }

    function test_tabStopsOnceAtTheChosenOne() {
        current = 1;
        compare(segments().map(segment => segment.activeFocusOnTab), [false, true, false]);
    }

    function test_fitsItsLabelsOrSharesTheWidth() {
        compare(switcher.height, 36);
        const fitting = switcher.width;
        switcher.width = 600;
        switcher.stretched = true;
        segments().forEach(segment => compare(segment.width, (600 - 6) / 3));
        switcher.stretched = false;
        switcher.width = Qt.binding(() => switcher.implicitWidth);
        compare(switcher.width, fitting);
    }
}
