// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.State

/// Tells what went wrong, over everything else, until the reader has taken note.
Sheet {
    id: alert

    required property InformationModel workbench

    /// Kept while the alert fades out.
    property string message

    width: 420
    padding: 28
    title: "Corvanite 没有改动原数据"
    visible: alert.workbench.hasErrorMessage

    onAboutToHide: alert.workbench.dismissError()
    onOpened: acknowledge.forceActiveFocus(Qt.TabFocusReason)

    LastingBinding on message {
        when: alert.workbench.hasErrorMessage
        value: alert.workbench.errorMessage
    }

    Column {
        width: alert.availableWidth
        spacing: 8

        Accessible.role: Accessible.AlertMessage
        Accessible.name: alert.title
        Accessible.description: alert.message

        HeadingText {
            width: parent.width
            text: alert.title
        }

        AppText {
            width: parent.width
            text: alert.message
            color: InformationTheme.ink2
        }

        Item {
            width: parent.width
            height: acknowledge.height + 8

            CitrineButton {
                id: acknowledge

                anchors.right: parent.right
                anchors.bottom: parent.bottom
                width: Math.max(96, implicitWidth)
                text: "知道了"
                onClicked: alert.workbench.dismissError()
            }
        }
    }
}
