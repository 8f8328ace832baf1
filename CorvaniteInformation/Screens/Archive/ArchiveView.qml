// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The archive: the index of days, or the page of the selected one.
FocusScope {
    id: surface

    required property InformationModel workbench

    /// Where the day that is shown, or was shown last, stands in the index.
    property int lastPosition: -1

    ArchivePage {
        id: page

        workbench: surface.workbench
        shown: surface.visible
        onDayChanged: surface.turn()
    }

    // The focus goes along, and where it is the keyboard's it comes back to the day it came from.
    function turn() {
        const byKeyboard = (surface.Window.activeFocusItem as Pressable)?.visualFocus ?? true;
        if (page.showsDay)
            lastPosition = page.dayPosition;
        if (!activeFocus)
            return;
        if (page.showsDay)
            day.forceActiveFocus();
        else if (byKeyboard)
            index.focusRow(lastPosition);
        else
            index.forceActiveFocus();
    }

    ArchiveIndex {
        id: index

        anchors.fill: parent
        focus: true
        visible: !page.showsDay
        page: page
    }

    ArchiveDayPage {
        id: day

        anchors.fill: parent
        visible: page.showsDay
        page: page
    }

    Shortcut {
        sequence: "Alt+Left"
        enabled: surface.visible && page.showsDay
        onActivated: surface.workbench.closeArchiveDay()
    }
}
