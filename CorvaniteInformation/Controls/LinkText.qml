// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A link that stands in the text, with an optional icon after it.
LabelButton {
    id: control

    property color restTint: InformationTheme.accent

    implicitHeight: Math.max(32, label.implicitHeight)
    spacing: 4
    radius: 2
    textStyle: TypeScale.small
    tint: down ? InformationTheme.ink2 : restTint
    iconSize: 14
    iconTrails: true

    Accessible.role: Accessible.Link

    Rectangle {
        parent: control.label
        anchors.top: parent.baseline
        anchors.topMargin: 2
        width: parent.width
        height: 1
        visible: control.hovered && !control.down
        color: control.tint
    }

    HandCursor {}
}
