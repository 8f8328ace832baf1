import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.State

/// Says what the last action did and offers to take it back. It lies over the page and never takes
/// the focus by itself.
Item {
    id: bar

    required property InformationModel workbench
    required property real maximumWidth

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

    Accessible.role: Accessible.AlertMessage
    Accessible.name: bar.message

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
        color: InformationTheme.malachite
    }

    AppText {
        id: text

        x: 22
        anchors.verticalCenter: parent.verticalCenter
        width: bar.width - bar.textSpace
        text: bar.message
        textStyle: InformationTheme.small
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
            text: "撤销"
            restTint: InformationTheme.accent
            onClicked: bar.workbench.undoLastAction()
        }

        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            text: "关闭回执"
            iconPath: IconPaths.close
            onClicked: bar.workbench.dismissReceipt()
        }
    }
}
