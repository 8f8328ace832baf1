// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import CorvaniteInformation.Controls

TestCase {
    id: test

    name: "PaneRowTest"
    when: windowShown
    visible: true
    width: 200
    height: 400

    property int earlyCount: 3

    QuietButton {
        id: elsewhere

        text: "别处"
    }

    ListModel {
        id: places
    }

    Component {
        id: paneOfPlaces

        PaneList {
            id: made

            property int emptied: 0

            width: 200
            height: 800
            model: places
            onLastRowRemoved: ++emptied

            CountedRows {
                id: early

                pane: made
                count: test.earlyCount
            }

            CountedRows {
                id: late

                pane: made
                count: 2
            }

            delegate: PaneRow {
                required property int index
                required property string name
                required property int group

                pane: made
                companions: [null, early, late][group]
                position: index
                width: 200
                implicitHeight: 100

                QuietButton {
                    focus: true
                    text: parent.name
                }
            }
        }
    }

    function init() {
        earlyCount = 3;
    }

    /// A pane with a row for each name; a figure before the name says with which rows it is counted.
    function paneOf(names: var): PaneList {
        places.clear();
        for (const name of names)
            places.append({name: name.slice(-1), group: name.length > 1 ? Number(name[0]) : 0});
        const pane = createTemporaryObject(paneOfPlaces, test) as PaneList;
        pane.forceLayout();
        return pane;
    }

    /// The rows in their order, those that are counted together in brackets.
    function order(item: Item): string {
        const told = child => child.name ?? (child instanceof CountedRows ? `(${order(child)})` : "");
        return Array.from(item.children).map(told).join("");
    }

    function test_rowsAreCountedTogetherWhereTheyStand_data() {
        return [
            {tag: "between others", names: ["a", "1b", "1c", "d", "2e", "2f", "g"], expected: "a(bc)d(ef)g"},
            {tag: "alone", names: ["1a", "1b"], expected: "()(ab)"},
            {tag: "the later ones alone", names: ["a", "2b"], expected: "()a(b)"}
        ];
    }

    function test_rowsAreCountedTogetherWhereTheyStand(data) {
        const pane = paneOf(data.names);
        tryVerify(() => order(pane.contentItem) === data.expected, 5000, order(pane.contentItem));
    }

    function test_aRowGoesToThoseThatItIsCountedWithNow() {
        const pane = paneOf(["a", "1b", "1c", "d"]);
        places.setProperty(2, "group", 2);
        places.insert(1, {name: "e", group: 1});
        pane.forceLayout();
        tryVerify(() => order(pane.contentItem) === "a(eb)(c)d");
    }

    function test_ofVeryManyRowsNoneIsCounted() {
        const pane = paneOf(["1a", "b"]);
        verify(pane.itemAtIndex(0).counted);
        verify(!pane.itemAtIndex(1).counted);
        test.earlyCount = 101;
        verify(!pane.itemAtIndex(0).counted);
        compare(pane.itemAtIndex(0).parent, pane.contentItem);
    }

    function test_aRowThatGoesFromUnderTheKeyboardStaysUntilTheFocusGoesOn_data() {
        return [
            {tag: "the first", names: ["1a", "1b", "1c"], index: 0, next: "b", expected: "(bc)"},
            {tag: "one between", names: ["a", "1b", "c"], index: 1, next: "c", expected: "ac"},
            {tag: "the last", names: ["1a", "1b"], index: 1, next: "a", expected: "(a)"}
        ];
    }

    function test_aRowThatGoesFromUnderTheKeyboardStaysUntilTheFocusGoesOn(data) {
        const pane = paneOf(data.names);
        pane.focusRow(data.index);
        const row = pane.itemAtIndex(data.index);
        pane.removeRow(data.index, () => places.remove(data.index));
        verify(row.gone && !row.visible);
        compare(row.parent, pane.contentItem);
        compare(pane.contentHeight, 100 * places.count);
        const next = pane.itemAtIndex(Math.min(data.index, places.count - 1));
        verify(next.activeFocus);
        compare(next.name, data.next);

        elsewhere.forceActiveFocus();
        tryVerify(() => order(pane.contentItem).replace(/\(\)/g, "") === data.expected);
    }

    function test_theLastRowLeavesTheFocusToWhomeverThePaneTells() {
        const pane = paneOf(["1a"]);
        pane.focusRow(0);
        pane.removeRow(0, () => places.remove(0));
        compare(pane.emptied, 1);
    }

    function test_aRowThatThePointerRemovesIsGoneAtOnce() {
        const pane = paneOf(["1a", "1b"]);
        elsewhere.forceActiveFocus();
        pane.removeRow(0, () => places.remove(0));
        tryVerify(() => order(pane.contentItem).replace(/\(\)/g, "") === "(b)");
        verify(elsewhere.activeFocus);
        compare(pane.emptied, 0);
    }
}
