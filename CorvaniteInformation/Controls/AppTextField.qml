// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Templates as T
import CorvaniteInformation.Controls

/// A field for one line of text.
T.TextField {
    id: field

    /// What to enter, shown while the field is empty. `placeholderText` would take the place of the
    /// description that a screen reader gets.
    property string prompt: ""
    property bool faulty: false
    property real radius: InformationTheme.fieldRadius

    /// It has the focus and got it from the keyboard.
    readonly property alias visualFocus: keyboard.visual

    implicitHeight: 44
    leftPadding: 13
    rightPadding: 13
    verticalAlignment: Text.AlignVCenter
    font: TypeScale.body.font
    color: InformationTheme.ink
    selectionColor: InformationTheme.selection
    selectedTextColor: InformationTheme.ink
    selectByMouse: true

    background: Rectangle {
        color: InformationTheme.card
        radius: field.radius
        border.width: field.faulty ? 2 : 1
        border.color: field.faulty ? InformationTheme.accent : InformationTheme.control

        FocusRing {
            visible: field.visualFocus
            controlRadius: field.radius
        }
    }

    KeyboardFocus {
        id: keyboard

        active: field.activeFocus
        reason: field.focusReason
    }

    AppText {
        anchors.verticalCenter: parent.verticalCenter
        x: field.leftPadding
        width: field.width - field.leftPadding - field.rightPadding
        visible: field.length === 0 && field.preeditText === ""
        text: field.prompt
        color: InformationTheme.ink3
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
