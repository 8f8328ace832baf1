// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

ButtonTestCase {
    name: "AppButtonTest"
    buttons: [
        {tag: "citrine", component: citrine, role: Accessible.Button, height: 38, label: "收下"},
        {tag: "quiet", component: quiet, role: Accessible.Button, height: 36, label: "这类少看"},
        {tag: "icon", component: icon, role: Accessible.Button, height: 32, label: "关闭回执"},
        {tag: "link", component: link, role: Accessible.Link, height: 32, label: "更多原文"},
        {tag: "chip", component: chip, role: Accessible.RadioButton, height: 28, label: "全部 22"}
    ]

    Component {
        id: citrine
        CitrineButton {
            text: "收下"
        }
    }

    Component {
        id: quiet
        QuietButton {
            text: "这类少看"
        }
    }

    Component {
        id: icon
        IconButton {
            text: "关闭回执"
            iconPath: IconPaths.close
        }
    }

    Component {
        id: link
        LinkText {
            text: "更多原文"
        }
    }

    Component {
        id: chip
        Chip {
            text: "全部 22"
            selected: true
        }
    }

    Component {
        id: named
        QuietButton {
            text: "这类少看"
            Accessible.name: "这类少看：产品雷达"
        }
    }

    function test_aPressCanBeTakenBack() {
        const button = made(quiet);
        mousePress(button);
        verify(button.down);
        mouseMove(button, -20, -20);
        verify(!button.down);
        mouseRelease(button, -20, -20);
        compare(clicks.count, 0);
        keyPress(Qt.Key_Space);
        verify(button.down);
        elsewhere.forceActiveFocus();
        verify(!button.down);
        keyRelease(Qt.Key_Space);
        compare(clicks.count, 0);
    }

    function test_hoverEndsWithTheButton_data() {
        return [{tag: "disabled", property: "enabled"}, {tag: "hidden", property: "visible"}];
    }

    function test_hoverEndsWithTheButton(row) {
        const button = made(quiet);
        mouseMove(button, 5, 5);
        verify(button.hovered);
        verify(Qt.colorEqual(button.outline, InformationTheme.control));
        button[row.property] = false;
        verify(!button.hovered);
    }

    function test_theRingComesBackWithTheButton() {
        const button = made(quiet);
        button.forceActiveFocus(Qt.TabFocusReason);
        button.enabled = false;
        verify(!button.visualFocus);
        button.enabled = true;
        verify(button.activeFocus);
        verify(button.visualFocus);
        elsewhere.forceActiveFocus();
        button.forceActiveFocus(Qt.MouseFocusReason);
        verify(!button.visualFocus);
    }

    function test_aPressTakesTheFocusUnlessItIsNotTo() {
        const button = made(quiet);
        elsewhere.forceActiveFocus();
        button.activeFocusOnPress = false;
        mouseClick(button);
        compare(clicks.count, 1);
        verify(!button.activeFocus);
        button.activeFocusOnPress = true;
        mouseClick(button);
        verify(button.activeFocus);
    }

    function test_aKeyWithAModifierIsNoPress_data() {
        return [
            {tag: "Ctrl+Enter", key: Qt.Key_Return, modifier: Qt.ControlModifier},
            {tag: "Alt+Space", key: Qt.Key_Space, modifier: Qt.AltModifier},
            {tag: "Meta+Space", key: Qt.Key_Space, modifier: Qt.MetaModifier}
        ];
    }

    function test_aKeyWithAModifierIsNoPress(row) {
        const button = made(quiet);
        button.forceActiveFocus();
        keyClick(row.key, row.modifier);
        compare(clicks.count, 0);
    }

    function test_iconAndLabelStandSideBySide() {
        const bare = made(citrine, {text: "添加信息"});
        const withIcon = made(citrine, {text: "添加信息", iconPath: IconPaths.add});
        compare(withIcon.width, bare.width + 16 + 6);
        compare(bare.leftPadding, 16);
    }

    function test_aNameOfItsOwnStandsBeforeTheLabel() {
        const button = made(named);
        compare(button.Accessible.name, "这类少看：产品雷达");
        screenReader.start();
        compare(button.Accessible.name, "这类少看：产品雷达");
        button.text = "少看";
        compare(button.Accessible.name, "这类少看：产品雷达");
    }

    function test_theHelpIsTheDescription() {
        const button = made(quiet, {help: "获取 Corvanite Information 新版本 1.2.3"});
        compare(button.Accessible.description, "获取 Corvanite Information 新版本 1.2.3");
        compare(button.Accessible.name, "这类少看");
    }

    function test_chipStates() {
        const button = made(chip, {square: "#112233"});
        screenReader.start();
        verify(button.Accessible.checkable);
        verify(button.Accessible.checked);
        mouseClick(button);
        verify(button.selected);
        verify(button.Accessible.checked);
        elsewhere.forceActiveFocus();
        verify(Qt.colorEqual(button.ground, InformationTheme.selectedChip));
        button.selected = false;
        verify(!button.Accessible.checked);
        verify(!button.activeFocusOnTab);
    }

    function test_aLongLabelIsCut() {
        const button = made(quiet, {text: "很长的名字".repeat(20), width: 120});
        verify(button.label.truncated);
        verify(button.label.width <= 96);
    }
}
