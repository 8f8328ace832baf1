// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// What a screen reader says by itself, wherever the focus is: its text, whenever that comes or changes.
/// Who shows the text to the eye hides it from a screen reader.
Item {
    id: announcement

    required property string text

    anchors.fill: parent
    visible: false

    Accessible.role: Accessible.Notification

    // A notification is read out when it appears, and not when it changes.
    onTextChanged: {
        visible = false;
        Accessible.name = text;
        visible = text !== "";
    }
}
