// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick

/// The soft edge under what lies above the page: layers that grow by two pixels each.
Item {
    id: elevation

    required property int layers
    required property int drop
    required property color layerColor
    required property real cornerRadius

    anchors.fill: parent

    Repeater {
        model: elevation.layers

        Rectangle {
            required property int index
            readonly property int growth: 2 * (index + 1)

            anchors.fill: parent
            anchors.margins: -growth
            anchors.topMargin: elevation.drop - growth
            anchors.bottomMargin: -elevation.drop - growth
            radius: elevation.cornerRadius + growth
            color: elevation.layerColor
        }
    }
}
