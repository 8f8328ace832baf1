// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtTest
import CorvaniteInformation.Controls

TestCase {
    id: test

    name: "LastingBindingTest"

    property string note: ""
    property string shown

    LastingBinding on shown {
        when: test.note !== ""
        value: test.note
    }

    function test_lastsWhenItsConditionEnds() {
        compare(shown, "");
        note = "first";
        compare(shown, "first");
        note = "second";
        compare(shown, "second");
        note = "";
        compare(shown, "second");
        note = "third";
        compare(shown, "third");
    }
}
