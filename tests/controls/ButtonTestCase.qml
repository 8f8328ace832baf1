// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtTest
import CorvaniteInformation.Controls

/// What holds of every button: its name, role and height, the ways of pressing it, and its ring.
TestCase {
    id: test

    /// A row a button: "tag", "component", "role", "height", "label".
    required property var buttons

    readonly property SignalSpy clicks: SignalSpy {
        signalName: "clicked"
    }
    readonly property Item elsewhere: Item {
        parent: test
    }

    when: windowShown
    width: 400
    height: 300
    visible: true

    function made(component: Component, properties: var): AppButton {
        const button = createTemporaryObject(component, test, properties ?? {});
        clicks.target = button;
        clicks.clear();
        return button;
    }

    function test_nameRoleAndHeight_data() {
        return buttons;
    }

    function test_nameRoleAndHeight(row) {
        const button = made(row.component);
        compare(button.Accessible.role, row.role);
        screenReader.start();
        compare(button.Accessible.role, row.role);
        compare(button.Accessible.name, row.label);
        compare(button.height, row.height);
    }

    function test_everyWayOfPressing_data() {
        return buttons;
    }

    function test_everyWayOfPressing(row) {
        const button = made(row.component);
        mouseClick(button);
        compare(clicks.count, 1);
        button.Accessible.pressAction();
        compare(clicks.count, 2);
        button.forceActiveFocus();
        keyClick(Qt.Key_Space);
        compare(clicks.count, 3);
        keyClick(Qt.Key_Return);
        compare(clicks.count, 4);
        keyClick(Qt.Key_Enter);
        compare(clicks.count, 5);
    }

    function test_noWayOfPressingWhileDisabled_data() {
        return buttons;
    }

    function test_noWayOfPressingWhileDisabled(row) {
        const button = made(row.component);
        button.enabled = false;
        mouseClick(button);
        button.Accessible.pressAction();
        button.forceActiveFocus();
        keyClick(Qt.Key_Space);
        keyClick(Qt.Key_Return);
        compare(clicks.count, 0);
    }

    function test_theRingShowsForTheKeyboardAlone_data() {
        return buttons;
    }

    function test_theRingShowsForTheKeyboardAlone(row) {
        const button = made(row.component);
        verify(!findRing(button));
        button.forceActiveFocus(Qt.MouseFocusReason);
        verify(!findRing(button));
        button.focus = false;
        button.forceActiveFocus(Qt.TabFocusReason);
        const ring = findRing(button);
        verify(ring.visible);
        compare(ring.width, button.width + 8);
        compare(ring.radius, button.radius + 4);
        verify(Qt.colorEqual(ring.border.color, InformationTheme.ring));
        button.focus = false;
        verify(!findRing(button));
    }

    function findRing(button: AppButton): FocusRing {
        return Array.from(button.children).find(child => child instanceof FocusRing);
    }
}
