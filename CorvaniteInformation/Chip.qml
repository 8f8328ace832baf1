import QtQuick
import CorvaniteInformation

/// One choice of a row of which exactly one is chosen. The chosen one alone is a stop of the Tab
/// key; who owns the row moves the choice by the arrow keys.
AppButton {
    id: control

    /// The colour of the small square before the label; transparent for none.
    property color square: "transparent"
    readonly property bool hasSquare: square.a > 0

    implicitHeight: 28
    leftPadding: hasSquare ? 9 : 11
    rightPadding: 11
    radius: 14
    focusPolicy: checked || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    textStyle: checked ? InformationTheme.captionBold : InformationTheme.caption
    tint: checked ? InformationTheme.selectedChipInk : hovered || down ? InformationTheme.ink : InformationTheme.ink2
    ground: checked ? InformationTheme.selectedChip : down ? InformationTheme.chipPressed : "transparent"
    outline: checked ? "transparent" : hovered && !down ? InformationTheme.control : InformationTheme.hairStrong

    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: checked

    contentItem: Row {
        spacing: control.spacing

        LaneSquare {
            anchors.verticalCenter: parent.verticalCenter
            visible: control.hasSquare
            color: control.square
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            text: control.text
            textStyle: control.textStyle
            color: control.tint
            wrapMode: Text.NoWrap
            Accessible.ignored: true
        }
    }
}
