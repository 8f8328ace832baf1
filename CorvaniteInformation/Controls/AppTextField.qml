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

    readonly property bool keyboardFocus: activeFocus && (focusReason === Qt.TabFocusReason || focusReason === Qt.BacktabFocusReason || focusReason === Qt.ShortcutFocusReason)

    implicitHeight: 44
    leftPadding: 13
    rightPadding: 13
    verticalAlignment: Text.AlignVCenter
    font: InformationTheme.body.font
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
            shown: field.keyboardFocus
            controlRadius: field.radius
        }
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
