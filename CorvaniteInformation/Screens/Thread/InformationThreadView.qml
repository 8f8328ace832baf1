// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The sheet with a signal's whole thread: its main points, how it came to be, further sources, and
/// for a kept signal the reader's own note.
Sheet {
    id: sheet

    required property InformationModel workbench

    /// Kept while the sheet fades out.
    property string signalId

    readonly property int sideMargin: 32

    width: 640
    height: Math.min(header.height + body.wholeHeight, parent.height - 72)
    title: threadPage.title
    visible: sheet.workbench.hasOpenThread

    onClosed: sheet.workbench.closeThread()
    onOpened: closeButton.forceActiveFocus(openedByKeyboard ? Qt.TabFocusReason : Qt.PopupFocusReason)

    LastingBinding on signalId {
        when: sheet.workbench.hasOpenThread
        value: sheet.workbench.openThreadId
    }

    ThreadPage {
        id: threadPage

        workbench: sheet.workbench
        signalId: sheet.signalId
        onSignalIdChanged: markSeen()
    }

    Item {
        width: sheet.availableWidth
        height: sheet.availableHeight

        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.title
        Accessible.description: threadPage.description

        // The button may have the focus, and the body turns.
        Keys.forwardTo: [body.scroller]

        Item {
            id: header

            width: parent.width
            height: heading.height

            Column {
                id: heading

                x: sheet.sideMargin
                width: closeButton.x - x
                topPadding: 24
                bottomPadding: 16
                spacing: 4

                EyebrowText {
                    text: "信息脉络"
                }

                HeadingText {
                    width: parent.width
                    text: threadPage.title
                    textStyle: TypeScale.title1
                    maximumLineCount: 3
                    elide: Text.ElideRight
                }
            }

            QuietButton {
                id: closeButton

                anchors.right: parent.right
                anchors.rightMargin: sheet.sideMargin - rightPadding
                y: 24
                activeFocusOnPress: false
                text: "关闭"
                onClicked: {
                    // A composition that is not finished is no part of the note. The sheet's own
                    // signals come after the focus has left it.
                    InputMethod.reset();
                    sheet.close();
                }
            }

            Hairline {
                anchors.bottom: parent.bottom
            }
        }

        ThreadBody {
            id: body

            y: header.height
            width: parent.width
            height: parent.height - y
            page: threadPage
        }
    }
}
