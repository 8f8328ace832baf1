pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation

/// The face of a button: its text with the icon before or after it, centred.
Item {
    id: label

    required property ButtonLook control
    readonly property alias textItem: text
    readonly property bool hasIcon: control.iconPath !== ""
    readonly property real iconSpace: hasIcon ? control.iconSize + control.spacing : 0

    implicitWidth: iconSpace + text.implicitWidth
    implicitHeight: Math.max(hasIcon ? control.iconSize : 0, text.implicitHeight)

    Row {
        anchors.centerIn: parent
        spacing: label.control.spacing
        layoutDirection: label.control.iconTrails ? Qt.RightToLeft : Qt.LeftToRight

        // A Loader of 6.4 cannot make a bound component.
        Repeater {
            model: label.hasIcon ? 1 : 0

            Icon {
                anchors.verticalCenter: parent?.verticalCenter
                path: label.control.iconPath
                size: label.control.iconSize
                stroke: label.control.iconStroke
                color: label.control.iconTint
                rotation: label.control.iconRotation
            }
        }

        AppText {
            id: text

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, label.width - label.iconSpace)
            text: label.control.text
            textStyle: label.control.textStyle
            color: label.control.tint
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
