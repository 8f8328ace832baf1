// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import CorvaniteInformation.Controls

/// A modal frame over the window, closed by Escape. It holds the Tab key inside, and gives the focus
/// back to where it was, or to `home`.
T.Dialog {
    id: sheet

    /// What takes the focus when the sheet has closed and its opener is no longer to be seen.
    required property Item home
    /// Of the points of the window those that the sheet blocks: an object with a function
    /// `contains(point): bool`. Without one it blocks all.
    property QtObject blocked: null
    readonly property bool openedByKeyboard: opener.byKeyboard

    readonly property FocusReturn opener: FocusReturn {
        home: sheet.home
    }

    parent: T.Overlay.overlay
    // On whole pixels, else its lines are blurred.
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    onAboutToShow: {
        const focused = parent.Window.activeFocusItem;
        opener.remember(focused);
        opener.byKeyboard = opener.byKeyboard || ((focused as AppTextField)?.visualFocus ?? false);
    }
    onClosed: opener.giveBack()
    // Its content says what it is; the frame would say it again.
    Component.onCompleted: contentItem.parent.Accessible.ignored = true

    T.Overlay.modal: Rectangle {
        color: InformationTheme.scrim
        containmentMask: sheet.blocked

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
