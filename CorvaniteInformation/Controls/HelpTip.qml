// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Templates as T
import CorvaniteInformation.Controls

/// The tooltip under a button.
T.ToolTip {
    id: tip

    required property AppButton button

    parent: button
    text: button.help
    visible: true
    x: Math.round((button.width - width) / 2)
    y: button.height + 8
    margins: 8
    horizontalPadding: 12
    verticalPadding: 6
    delay: 600
    closePolicy: T.Popup.NoAutoClose

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    contentItem: AppText {
        text: tip.text
        textStyle: TypeScale.small
        wrapMode: Text.NoWrap
    }

    background: RaisedGround {
        radius: InformationTheme.rowRadius
    }
}
