// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls

/// A button whose face is its text, with an icon before or after it.
AppButton {
    id: control

    property TextStyle textStyle: TypeScale.quietLabel
    property color tint: InformationTheme.ink
    property color iconTint: tint
    property real leftPadding: 0
    property real rightPadding: leftPadding
    property real spacing: 6

    property string iconPath: ""
    property real iconSize: 16
    property real iconStroke: 1.75
    property real iconRotation: 0
    /// The icon stands after the text.
    property bool iconTrails: false

    readonly property alias label: label
    readonly property real iconSpace: iconPath === "" ? 0 : iconSize + spacing

    // Whole pixels: text that begins between two is drawn smeared.
    implicitWidth: leftPadding + iconSpace + Math.ceil(label.implicitWidth) + rightPadding
    implicitHeight: label.implicitHeight

    Row {
        anchors.verticalCenter: parent.verticalCenter
        x: control.leftPadding + Math.max(0, Math.floor((control.width - control.implicitWidth) / 2))
        spacing: control.spacing
        layoutDirection: control.iconTrails ? Qt.RightToLeft : Qt.LeftToRight

        Optional {
            when: control.iconPath !== ""

            Icon {
                anchors.verticalCenter: parent?.verticalCenter
                path: control.iconPath
                size: control.iconSize
                stroke: control.iconStroke
                color: control.iconTint
                rotation: control.iconRotation
            }
        }

        AppText {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.ceil(implicitWidth), control.width - control.leftPadding - control.iconSpace - control.rightPadding)
            text: control.text
            textStyle: control.textStyle
            color: control.tint
            wrapMode: Text.NoWrap
            maximumLineCount: 1
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
