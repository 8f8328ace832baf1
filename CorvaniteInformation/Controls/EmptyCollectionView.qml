// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls

/// What stands in place of an empty list: why it is empty, and one way on.
Column {
    id: view

    required property string title
    required property string message
    required property string action

    signal perform

    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 44
        height: 29 + 24

        Repeater {
            model: 4

            Rectangle {
                required property int index

                x: index === 1 ? 6 : 0
                y: 8 * index
                width: 44 - x
                height: 5
                radius: 1.5
                color: index === 2 ? InformationTheme.citrine : InformationTheme.hairStrong
            }
        }
    }

    Column {
        width: parent.width
        bottomPadding: 24
        spacing: 8

        HeadingText {
            width: parent.width
            text: view.title
            textStyle: TypeScale.title1
            horizontalAlignment: Text.AlignHCenter
        }

        AppText {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, 496)
            text: view.message
            color: InformationTheme.ink2
            horizontalAlignment: Text.AlignHCenter
        }
    }

    CitrineButton {
        anchors.horizontalCenter: parent.horizontalCenter
        text: view.action
        onClicked: view.perform()
    }
}
