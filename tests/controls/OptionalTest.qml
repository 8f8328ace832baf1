// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import CorvaniteInformation.Controls

TestCase {
    id: test

    name: "OptionalTest"
    when: windowShown
    visible: true
    width: 100
    height: 100

    Component {
        id: columnOfThree

        Column {
            id: column

            property bool holds: false
            property int span: 10
            property int gone: 0

            Item {
                objectName: "above"
                width: 1
                height: 5
            }

            Optional {
                objectName: "optional"
                when: column.holds

                Item {
                    objectName: "made"
                    width: column.span
                    height: 7
                    Component.onDestruction: ++column.gone
                }
            }

            Item {
                objectName: "below"
                width: 1
                height: 5
            }
        }
    }

    Component {
        id: columnThatHolds

        Column {
            Optional {
                when: true

                Item {
                    objectName: "made"
                }
            }
        }
    }

    function made(column: Column): Item {
        return Array.from(column.children).find(child => child.objectName === "made") ?? null;
    }

    function test_isThereFromTheBeginningWhereItHolds() {
        verify(made(createTemporaryObject(columnThatHolds, test)));
    }

    function test_comesAndGoesAtItsPlace() {
        const column = createTemporaryObject(columnOfThree, test);
        const below = column.children[2];
        verify(!made(column));
        tryCompare(below, "y", 5);

        column.holds = true;
        const item = made(column);
        compare(item.parent, column);
        compare(Array.from(column.children).map(child => child.objectName), ["above", "optional", "made", "below"]);
        tryCompare(item, "y", 5);
        tryCompare(below, "y", 12);

        column.holds = false;
        verify(!made(column));
        tryCompare(below, "y", 5);
        tryCompare(column, "gone", 1);

        column.holds = true;
        verify(made(column));
    }

    function test_isBoundToWhatStandsAroundIt() {
        const column = createTemporaryObject(columnOfThree, test, { holds: true });
        column.span = 20;
        compare(made(column).width, 20);
    }

    function test_goesWithTheConditionsOwner() {
        const column = createTemporaryObject(columnOfThree, test, { holds: true });
        const optional = column.children[1];
        optional.destroy();
        tryCompare(column, "gone", 1);
    }
}
