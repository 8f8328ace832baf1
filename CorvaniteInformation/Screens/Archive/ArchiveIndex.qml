// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The index of archived days.
PageList {
    id: list

    required property ArchivePage page

    head: head
    model: page.days

    Accessible.role: Accessible.List
    Accessible.name: "往期精选"

    ArchiveHead {
        id: head

        parent: list.contentItem
        x: list.columnX
        width: list.columnWidth
        page: list.page
    }

    delegate: FocusScope {
        id: place

        required property archiveDayRow row
        required property int index

        width: list.width
        implicitHeight: section.height - section.hiddenAbove - section.hiddenBelow + (row.closesDay ? 12 : 0)
        clip: !row.opensDay || !row.closesDay

        ArchiveDay {
            id: section

            x: list.columnX
            y: -hiddenAbove
            width: list.columnWidth
            focus: true
            row: place.row
            Keys.onPressed: event => event.accepted = list.walk(place.index, event.key)
            onOpened: list.page.workbench.openArchiveDay(row.date)
        }
    }
}
