// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Templates as T
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The reader's own note on a kept signal. Every edit is stored at once.
T.TextArea {
    id: editor

    required property ThreadPage thread

    /// The cursor stands in the part of the editor from `y` on.
    signal cursorMoved(y: real, height: real)

    /// The text comes from the store and not from the reader.
    property bool loading: false

    implicitHeight: Math.max(60, contentHeight + topPadding + bottomPadding)
    padding: 12
    color: InformationTheme.ink
    font: TypeScale.body.font
    placeholderText: "自己的备注（可选）"
    placeholderTextColor: InformationTheme.ink3
    selectByMouse: true
    selectionColor: InformationTheme.selection
    selectedTextColor: InformationTheme.ink
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap

    Accessible.name: placeholderText

    Keys.priority: Keys.BeforeItem
    Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    Component.onCompleted: load()
    onTextChanged: if (!loading)
        thread.writeNote(text)
    onCursorRectangleChanged: if (activeFocus)
        cursorMoved(cursorRectangle.y, cursorRectangle.height)

    Connections {
        target: editor.thread

        function onNoteReplaced() {
            editor.load();
        }
    }

    function load() {
        loading = true;
        text = thread.storedNote();
        loading = false;
    }

    background: Rectangle {
        color: InformationTheme.card
        radius: InformationTheme.fieldRadius
        border.color: InformationTheme.control

        FocusRing {
            visible: keyboard.visual
            controlRadius: InformationTheme.fieldRadius
        }
    }

    KeyboardFocus {
        id: keyboard

        active: editor.activeFocus
        reason: editor.focusReason
    }

    AppText {
        x: editor.leftPadding
        y: editor.topPadding - topPadding
        width: editor.width - editor.leftPadding - editor.rightPadding
        visible: editor.length === 0 && editor.preeditText === ""
        text: editor.placeholderText
        color: editor.placeholderTextColor
        Accessible.ignored: true
    }
}
