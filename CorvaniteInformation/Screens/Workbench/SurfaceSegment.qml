// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// One segment of the surface switcher. The chosen one alone is a stop of the Tab key.
LabelButton {
    required property bool selected

    implicitHeight: 30
    leftPadding: 12
    radius: InformationTheme.segmentRadius
    activeFocusOnPress: false
    activeFocusOnTab: selected || activeFocus
    textStyle: selected ? TypeScale.smallBold : TypeScale.small
    tint: selected || hovered ? InformationTheme.ink : InformationTheme.ink2
    iconTint: selected ? InformationTheme.accent : tint
    ground: selected ? InformationTheme.thumb : "transparent"
    outline: selected ? InformationTheme.hair : "transparent"

    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.description: selected ? "已选中" : ""
}
