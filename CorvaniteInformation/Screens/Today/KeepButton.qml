// SPDX-License-Identifier: Apache-2.0

import CorvaniteInformation.Controls

/// Keeps a card, the primary action, or shows that it is kept and takes that back. One button in
/// two looks, so that it holds the focus through the change.
LabelButton {
    id: control

    required property bool kept
    /// How far to shift the button to the left to have its face on the text axis.
    readonly property real shift: kept ? leftPadding : 0

    width: kept ? implicitWidth : Math.max(80, implicitWidth)
    implicitHeight: kept ? 36 : 38
    leftPadding: kept ? 12 : 16
    radius: kept ? InformationTheme.quietRadius : InformationTheme.citrineRadius
    text: kept ? "已收下" : "收下"
    iconPath: kept ? IconPaths.confirmed : ""
    iconTint: InformationTheme.malachite
    iconStroke: 2.25
    textStyle: kept ? TypeScale.quietLabel : TypeScale.citrineLabel
    tint: {
        if (!kept)
            return InformationTheme.citrineInk;
        return down ? InformationTheme.ink2 : InformationTheme.ink;
    }
    ground: {
        if (kept)
            return down ? InformationTheme.quietPressed : "transparent";
        return down ? InformationTheme.citrinePressed : InformationTheme.citrine;
    }
    outline: {
        if (!hovered || down)
            return "transparent";
        return kept ? InformationTheme.control : InformationTheme.citrineDark;
    }
}
