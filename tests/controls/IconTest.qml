// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtTest
import CorvaniteInformation.Controls

TestCase {
    id: test

    name: "IconTest"
    when: windowShown
    width: 100
    height: 100
    visible: true

    Component {
        id: square

        Rectangle {
            property alias icon: icon

            width: 48
            height: 48
            color: "#ffffff"

            Icon {
                id: icon

                path: "M6 6H18V18H6Z"
                color: "#ff0000"
                size: 48
            }
        }
    }

    function test_isDrawn_data() {
        return [
            {tag: "stroked", filled: false, centre: "#ffffff", side: "#ff0000"},
            {tag: "filled", filled: true, centre: "#ff0000", side: "#ff0000"}
        ];
    }

    function test_isDrawn(row) {
        const ground = createTemporaryObject(square, test);
        ground.icon.stroke = 4;
        ground.icon.filled = row.filled;
        const picture = grabImage(ground);
        compare(picture.pixel(24, 24), row.centre);
        compare(picture.pixel(13, 24), row.side);
        compare(picture.pixel(4, 24), "#ffffff");
    }

    function test_isDrawnAnew_data() {
        return [
            {tag: "color", value: "#0000ff", pixel: "#0000ff"},
            {tag: "path", value: "M20 20H21", pixel: "#ffffff"},
            {tag: "stroke", value: 0.5, pixel: "#ffffff"},
            {tag: "size", value: 12, pixel: "#ffffff"}
        ];
    }

    function test_isDrawnAnew(row) {
        const ground = createTemporaryObject(square, test);
        ground.icon.stroke = 4;
        compare(grabImage(ground).pixel(15, 24), "#ff0000");
        ground.icon[row.tag] = row.value;
        compare(grabImage(ground).pixel(15, 24), row.pixel);
    }

    function test_isPassedOverByAScreenReader() {
        const ground = createTemporaryObject(square, test);
        compare(ground.icon.implicitWidth, 48);
        compare(ground.icon.Accessible.role, Accessible.NoRole);
    }
}
