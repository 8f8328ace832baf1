pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation

/// The face of a button: its text with the icon before or after it, centred.
Item {
    id: label

    required property ButtonLook control
    readonly property alias textItem: text
    readonly property real iconSpace: icon.active ? control.iconSize + (text.visible ? control.spacing : 0) : 0

    implicitWidth: iconSpace + (text.visible ? text.implicitWidth : 0)
    implicitHeight: Math.max(icon.height, text.visible ? text.implicitHeight : 0)

    Row {
        anchors.centerIn: parent
        spacing: label.control.spacing
        layoutDirection: label.control.iconTrails ? Qt.RightToLeft : Qt.LeftToRight

        Loader {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            active: label.control.iconPath !== ""
            visible: active
            rotation: label.control.iconRotation
            sourceComponent: Icon {
                path: label.control.iconPath
                size: label.control.iconSize
                stroke: label.control.iconStroke
                color: label.control.iconTint
            }
        }

        AppText {
            id: text

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, label.width - label.iconSpace)
            visible: text !== ""
            text: label.control.text
            textStyle: label.control.textStyle
            color: label.control.tint
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
