import QtQuick
import CorvaniteInformation

/// A button that shows an icon alone; its text is its name for a screen reader.
AppButton {
    id: control

    property real side: 32
    property color restTint: InformationTheme.ink2

    implicitWidth: side
    implicitHeight: side
    padding: 0
    radius: InformationTheme.rowRadius
    tint: !enabled ? InformationTheme.ink3 : down ? InformationTheme.ink : restTint
    ground: down ? InformationTheme.quietPressed : "transparent"
    outline: enabled && hovered && !down ? InformationTheme.control : "transparent"

    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            path: control.iconPath
            size: control.iconSize
            stroke: control.iconStroke
            color: control.tint
        }
    }
}
