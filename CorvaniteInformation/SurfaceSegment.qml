import QtQuick
import CorvaniteInformation

/// One segment of the surface switcher.
AppButton {
    required property bool selected

    implicitHeight: 30
    horizontalPadding: 12
    radius: InformationTheme.segmentRadius
    focusPolicy: selected || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    textStyle: selected ? InformationTheme.smallBold : InformationTheme.small
    tint: selected || hovered ? InformationTheme.ink : InformationTheme.ink2
    iconTint: selected ? InformationTheme.accent : tint
    ground: selected ? InformationTheme.thumb : "transparent"
    outline: selected ? InformationTheme.hair : "transparent"

    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: selected
}
