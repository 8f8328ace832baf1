// SPDX-License-Identifier: Apache-2.0

import QtQml

/// Whether a text field got the focus from the keyboard. A field tells no more than why it has the
/// focus now: coming back to the window does not tell how the focus was got.
QtObject {
    id: focus

    required property bool active
    /// A `Qt.FocusReason`.
    required property int reason

    readonly property bool visual: active && fromKeyboard
    property bool fromKeyboard: false

    onActiveChanged: if (active && reason !== Qt.ActiveWindowFocusReason)
        fromKeyboard = reason === Qt.TabFocusReason || reason === Qt.BacktabFocusReason || reason === Qt.ShortcutFocusReason
}
