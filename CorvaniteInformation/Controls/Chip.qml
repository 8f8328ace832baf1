// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// One choice of a row of which exactly one is chosen. The chosen one alone is a stop of the Tab
/// key; who owns the row moves the choice by the arrow keys.
AppButton {
    id: control

    required property bool selected
    /// The colour of the small square before the label; transparent for none.
    property color square: "transparent"
    readonly property bool hasSquare: square.a > 0
    /// Stands closer to its edges, where the row would not fit.
    property bool tight: false
    /// Its width where it is not tight.
    readonly property real roomyWidth: Math.ceil(face.width) + (hasSquare ? 20 : 22)
    readonly property color tint: {
        if (selected)
            return InformationTheme.selectedChipInk;
        return hovered || down ? InformationTheme.ink : InformationTheme.ink2;
    }

    implicitWidth: roomyWidth - (tight ? 6 : 0)
    implicitHeight: 28
    radius: 14
    activeFocusOnTab: selected || activeFocus
    ground: selected ? InformationTheme.selectedChip : down ? InformationTheme.chipPressed : "transparent"
    outline: {
        if (selected)
            return "transparent";
        return hovered && !down ? InformationTheme.control : InformationTheme.hairStrong;
    }

    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.onToggleAction: if (control.enabled) control.clicked()

    Row {
        id: face

        x: (control.hasSquare ? 9 : 11) - (control.tight ? 3 : 0)
        anchors.verticalCenter: parent.verticalCenter
        spacing: 6

        LaneSquare {
            anchors.verticalCenter: parent.verticalCenter
            visible: control.hasSquare
            color: control.square
        }

        AppText {
            text: control.text
            textStyle: control.selected ? TypeScale.captionBold : TypeScale.caption
            color: control.tint
            wrapMode: Text.NoWrap
            Accessible.ignored: true
        }
    }
}
