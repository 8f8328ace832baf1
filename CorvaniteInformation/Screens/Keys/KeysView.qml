// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The sheet with what can be done by keyboard.
Sheet {
    id: sheet

    readonly property int sideMargin: 32

    width: 560
    height: Math.min(heading.height + keys.topMargin + keys.contentHeight + keys.bottomMargin, parent.height - 72)
    title: page.title
    visible: true

    onOpened: closeButton.forceActiveFocus(Qt.TabFocusReason)

    KeysPage {
        id: page
    }

    Item {
        width: sheet.availableWidth
        height: sheet.availableHeight

        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.title
        Accessible.description: page.description

        // The button has the focus, and the list turns.
        Keys.forwardTo: [keys.scroller]

        HeadingText {
            id: heading

            x: sheet.sideMargin
            width: closeButton.x - x
            topPadding: 28
            bottomPadding: 16
            text: sheet.title
            textStyle: TypeScale.title1
        }

        QuietButton {
            id: closeButton

            anchors.right: parent.right
            anchors.rightMargin: sheet.sideMargin - rightPadding
            y: 24
            text: "关闭"
            onClicked: sheet.close()
        }

        Hairline {
            y: heading.height - height
        }

        PageList {
            id: keys

            y: heading.height
            width: parent.width
            height: parent.height - y
            // All rows at once: the sheet is as high as they are.
            reach: 1200
            sideMargin: sheet.sideMargin
            topSpace: 16
            bottomSpace: 28
            spacing: 8
            model: page.rows

            delegate: Item {
                id: place

                required property labelledTextRow modelData

                width: keys.width
                implicitHeight: key.height

                KeyRow {
                    id: key

                    x: keys.columnX
                    width: keys.columnWidth
                    row: place.modelData
                }
            }
        }
    }
}
