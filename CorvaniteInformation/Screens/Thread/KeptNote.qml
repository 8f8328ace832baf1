// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// Why the reader kept a signal, and the reader's own note on it.
Column {
    id: note

    required property ThreadPage thread

    /// The cursor stands in the part of the editor from `y` on.
    signal cursorMoved(editor: Item, y: real, height: real)

    spacing: 8

    ThreadSection {
        width: parent.width
        heading: "为什么留下"
        text: note.thread.saveReason
        tint: InformationTheme.ink2
    }

    NoteEditor {
        id: editor

        width: parent.width
        thread: note.thread
        onCursorMoved: (y, height) => note.cursorMoved(editor, y, height)
    }
}
