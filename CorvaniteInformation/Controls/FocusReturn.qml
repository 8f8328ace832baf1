// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// Gives the focus back to where it was; where that is no longer to be seen, to `home`.
QtObject {
    id: focusReturn

    /// What takes the focus where its old place is gone.
    required property Item home

    property Item place: null
    property bool byKeyboard: false

    function remember(item: Item) {
        place = item;
        byKeyboard = (item as Pressable)?.visualFocus ?? false;
    }

    function giveBack() {
        const goal = place?.visible ? place : home;
        goal.forceActiveFocus(byKeyboard ? Qt.TabFocusReason : Qt.PopupFocusReason);
    }
}
