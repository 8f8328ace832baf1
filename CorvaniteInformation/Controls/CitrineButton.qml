// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The one primary action of a place.
LabelButton {
    implicitHeight: 38
    leftPadding: 16
    radius: InformationTheme.citrineRadius
    textStyle: TypeScale.citrineLabel
    tint: enabled ? InformationTheme.citrineInk : InformationTheme.ink3
    ground: !enabled ? InformationTheme.track : down ? InformationTheme.citrinePressed : InformationTheme.citrine
    outline: hovered && !down ? InformationTheme.citrineDark : "transparent"
}
