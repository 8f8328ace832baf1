// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// Makes its one delegate while a condition holds. A Loader of Qt 6.4 cannot make a bound component.
Repeater {
    required property bool when

    model: when ? 1 : 0
}
