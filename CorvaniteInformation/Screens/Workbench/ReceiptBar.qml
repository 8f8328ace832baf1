// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.State

/// Says what the last action did and offers to take it back. It lies over the page and never takes
/// the focus by itself; once it has done what the reader came for, the focus goes back to where it was
/// when the receipt came.
FocusScope {
    id: bar

    required property InformationModel workbench
    required property real maximumWidth
    /// What takes the focus where its old place is gone.
    required property Item home

    /// Both are kept while the bar slides out.
    property string message
    property bool undoable

    property real sunk: InformationTheme.reducedMotion ? 0 : 16

    readonly property real textSpace: text.x + actions.width + 8 + 16

    width: Math.min(Math.ceil(text.implicitWidth) + textSpace, maximumWidth)
    height: text.lineCount > 1 ? 64 : 48
    visible: opacity > 0
    opacity: 0
    transform: Translate {
        y: bar.sunk
    }

    FocusReturn {
        id: origin

        home: bar.home
    }

    Connections {
        target: bar.workbench

        function onReceiptChanged() {
            if (bar.activeFocus)
                origin.giveBack();
            else
                origin.remember(bar.Window.activeFocusItem);
        }
    }

    // Not in the bar, which its transition shows, hides and shows again: each would be read out.
    Announcement {
        parent: bar.parent
        text: bar.workbench.receipt
        Accessible.description: bar.undoable ? "按 Ctrl+Z 撤销" : ""
    }

    states: State {
        name: "shown"
        when: bar.workbench.hasReceipt

        PropertyChanges {
            bar.opacity: 1
            bar.sunk: 0
        }
    }

    transitions: [
        Transition {
            to: "shown"

            NumberAnimation {
                properties: "opacity,sunk"
                duration: InformationTheme.receiptInDuration
                easing.type: Easing.OutCubic
            }
        },
        Transition {
            from: "shown"

            NumberAnimation {
                properties: "opacity,sunk"
                duration: InformationTheme.receiptOutDuration
                easing.type: Easing.InCubic
            }
        }
    ]

    LastingBinding on message {
        when: bar.workbench.hasReceipt
        value: bar.workbench.receipt
    }

    LastingBinding on undoable {
        when: bar.workbench.hasReceipt
        value: bar.workbench.canUndo
    }

    RaisedGround {
        anchors.fill: parent
        radius: InformationTheme.receiptRadius
    }

    Rectangle {
        x: 9
        anchors.verticalCenter: parent.verticalCenter
        width: 3
        height: 24
        radius: 1.5
        color: InformationTheme.malachite
    }

    AppText {
        id: text

        x: 22
        anchors.verticalCenter: parent.verticalCenter
        width: bar.width - bar.textSpace
        text: bar.message
        textStyle: TypeScale.small
        maximumLineCount: 2
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        QuietButton {
            anchors.verticalCenter: parent.verticalCenter
            visible: bar.undoable
            activeFocusOnPress: false
            text: "撤销"
            Accessible.description: bar.message
            restTint: InformationTheme.accent
            onClicked: bar.workbench.undoLastAction()
        }

        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            activeFocusOnPress: false
            text: "关闭回执"
            iconPath: IconPaths.close
            onClicked: bar.workbench.dismissReceipt()
        }
    }
}
