// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A button that shows an icon alone.
AppButton {
    id: control

    required property string iconPath
    property real side: 32
    property color restTint: InformationTheme.ink2

    implicitWidth: side
    implicitHeight: side
    radius: InformationTheme.rowRadius
    ground: down ? InformationTheme.quietPressed : "transparent"
    outline: hovered && !down ? InformationTheme.control : "transparent"

    Icon {
        anchors.centerIn: parent
        path: control.iconPath
        color: !control.enabled ? InformationTheme.ink3 : control.down ? InformationTheme.ink : control.restTint
    }
}
