// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtTest
import CorvaniteInformation.Controls

TestCase {
    id: test

    name: "AppTextTest"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: plain
        AppText {}
    }

    Component {
        id: heading
        HeadingText {}
    }

    Component {
        id: eyebrow
        EyebrowText {}
    }

    Component {
        id: tag
        Tag {}
    }

    function test_roles_data() {
        return [
            {tag: "text", component: plain, role: Accessible.StaticText},
            {tag: "heading", component: heading, role: Accessible.Heading},
            {tag: "eyebrow", component: eyebrow, role: Accessible.StaticText}
        ];
    }

    function test_roles(row) {
        const text = createTemporaryObject(row.component, test, {text: "今天先看 3 条"});
        compare(text.Accessible.role, row.role);
        compare(text.Accessible.name, "今天先看 3 条");
    }

    function test_linesHaveTheHeightOfTheScale_data() {
        const styles = ["display", "title1", "title2", "title3", "figure", "body", "bodyBold", "small", "smallBold", "caption", "captionBold", "meta", "metaBold", "eyebrow", "brandName"];
        return styles.map(style => ({tag: style}));
    }

    function test_linesHaveTheHeightOfTheScale(row) {
        const style = TypeScale[row.tag];
        const text = createTemporaryObject(plain, test, {textStyle: style, text: "一行\n两行\n三行 with Latin"});
        compare(text.height, 3 * style.lineHeight);
        compare(text.font.pixelSize, style.font.pixelSize);
        verify(style.font.pixelSize >= 12);
    }

    function test_contentIsNeverMarkup() {
        const text = createTemporaryObject(plain, test, {text: "<b>x</b> &amp; <a href='https://e.example'>y</a>"});
        compare(text.textFormat, Text.PlainText);
        compare(text.linkAt(20, 10), "");
    }

    function test_tagsCarryTheirOwnGround_data() {
        return [
            {tag: "neutral", kind: Tag.Neutral, ground: "well", ink: "ink2"},
            {tag: "change", kind: Tag.Change, ground: "accentWash", ink: "accent"},
            {tag: "blocked", kind: Tag.Blocked, ground: "blockedGround", ink: "agateStrong"},
            {tag: "unstable", kind: Tag.Unstable, ground: "unstableGround", ink: "citrineDark"},
            {tag: "running", kind: Tag.Running, ground: "runningGround", ink: "citrineDark"}
        ];
    }

    function test_tagsCarryTheirOwnGround(row) {
        const made = createTemporaryObject(tag, test, {text: "已看过", kind: row.kind});
        verify(Qt.colorEqual(made.color, InformationTheme[row.ground]));
        verify(Qt.colorEqual(made.ink, InformationTheme[row.ink]));
        compare(made.height, 20);
    }
}
