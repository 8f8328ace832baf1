// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// Says how the reader's feedback has adjusted the selection, and takes the adjustment back.
Item {
    id: status

    required property string text

    signal resetPressed

    implicitHeight: Math.max(36, sentence.implicitHeight)

    Icon {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        path: IconPaths.adjusted
        color: InformationTheme.ink2
    }

    AppText {
        id: sentence

        anchors.verticalCenter: parent.verticalCenter
        x: icon.width + 8
        width: reset.x - x
        text: status.text
        textStyle: TypeScale.small
        color: InformationTheme.ink2
    }

    QuietButton {
        id: reset

        anchors.verticalCenter: parent.verticalCenter
        x: parent.width - width + rightPadding
        text: "重置调整"
        restTint: InformationTheme.accent
        onClicked: status.resetPressed()
    }
}
