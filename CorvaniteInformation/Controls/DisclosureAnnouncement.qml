// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// Says the description of the button that has the focus when it changes: Qt 6.4 tells a screen reader
/// that it has, and not what it is now.
Announcement {
    id: announcement

    required property Item button
    required property string description

    text: ""

    onDescriptionChanged: text = button.activeFocus ? description : ""

    Connections {
        target: announcement.button

        function onActiveFocusChanged() {
            announcement.text = "";
        }
    }
}
