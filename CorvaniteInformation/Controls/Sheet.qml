pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import CorvaniteInformation.Controls

/// A modal frame over the window, closed by Escape. It holds the Tab key inside, and gives the focus
/// back to where it was.
T.Dialog {
    id: sheet

    property Item opener: null
    property bool openedByKeyboard: false

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    onAboutToShow: {
        opener = parent.Window.activeFocusItem;
        openedByKeyboard = (opener as Pressable)?.visualFocus ?? false;
    }
    onClosed: opener?.forceActiveFocus(openedByKeyboard ? Qt.TabFocusReason : Qt.PopupFocusReason)

    T.Overlay.modal: Rectangle {
        color: InformationTheme.scrim

        Behavior on opacity {
            NumberAnimation {
                duration: InformationTheme.scrimDuration
            }
        }
    }

    background: Item {
        Elevation {
            layers: 8
            drop: 4
            layerColor: InformationTheme.sheetShadow
            cornerRadius: InformationTheme.sheetRadius
        }

        Rectangle {
            anchors.fill: parent
            color: InformationTheme.card
            radius: InformationTheme.sheetRadius
            border.color: InformationTheme.hairStrong
        }
    }

    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: InformationTheme.sheetInDuration
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            property: "scale"
            from: InformationTheme.reducedMotion ? 1 : 0.98
            to: 1
            duration: InformationTheme.sheetInDuration
            easing.type: Easing.OutCubic
        }
    }

    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: InformationTheme.sheetOutDuration
        }
    }
}
