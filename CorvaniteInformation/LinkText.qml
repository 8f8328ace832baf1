import QtQuick
import CorvaniteInformation

/// A link that stands in the text, with an optional icon after it.
AppButton {
    id: control

    property color restTint: InformationTheme.accent

    implicitHeight: Math.max(28, implicitContentHeight)
    padding: 0
    spacing: 4
    radius: 2
    textStyle: InformationTheme.small
    tint: down ? InformationTheme.ink2 : restTint
    iconSize: 14
    iconTrails: true

    Accessible.role: Accessible.Link

    contentItem: LinkLabel {
        control: control
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
