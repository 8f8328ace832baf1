// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One archived day: what was chosen and why, as a printed page.
PageList {
    id: list

    required property ArchivePage page

    head: head
    foot: foot
    model: page.focusRows

    Accessible.role: Accessible.List
    Accessible.name: page.day.title

    Connections {
        target: list.page
        function onDayChanged() {
            list.scroller.scrollToTop();
        }
    }

    ArchiveDayHead {
        id: head

        parent: list.contentItem
        x: list.columnX
        width: list.columnWidth
        page: list.page
    }

    delegate: Item {
        id: place

        required property archiveFocusRow row

        width: list.width
        implicitHeight: section.height

        ArchiveFocus {
            id: section

            x: list.columnX
            width: list.columnWidth
            row: place.row
        }
    }

    ArchiveDayFoot {
        id: foot

        parent: list.contentItem
        x: list.columnX
        width: list.columnWidth
        page: list.page
    }
}
