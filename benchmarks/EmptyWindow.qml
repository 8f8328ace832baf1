// SPDX-License-Identifier: Apache-2.0

import QtQuick

Window {
    width: 1120
    height: 780
    visible: true
    title: "Empty"
    flags: Qt.Window | Qt.FramelessWindowHint
    color: "white"
}
