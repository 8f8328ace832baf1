// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Shapes
import CorvaniteInformation.Controls

/// One of the drawings of IconPaths, scaled to a size. Decoration: a screen reader passes it over.
Shape {
    id: icon

    required property string path
    property color color: InformationTheme.ink2
    property real size: 16
    /// On the grid of 24.
    property real stroke: 1.75
    property bool filled: false

    readonly property real unit: icon.size / 24

    implicitWidth: icon.size
    implicitHeight: icon.size

    ShapePath {
        scale: Qt.size(icon.unit, icon.unit)
        strokeColor: icon.filled ? "transparent" : icon.color
        strokeWidth: icon.filled ? -1 : icon.stroke * icon.unit
        fillColor: icon.filled ? icon.color : "transparent"
        fillRule: ShapePath.OddEvenFill
        capStyle: ShapePath.RoundCap
        joinStyle: ShapePath.RoundJoin

        PathSvg {
            path: icon.path
        }
    }
}
