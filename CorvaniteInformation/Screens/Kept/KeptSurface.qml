// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// What the reader has kept and handed in, and the search in it.
Surface {
    id: surface

    required property InformationModel workbench

    function focusSearch() {
        head.focusSearch();
    }

    function remove(row: keptRow, index: int) {
        list.removeRow(index, () => page.remove(row));
    }

    KeptPage {
        id: page

        workbench: surface.workbench
        shown: surface.visible
    }

    // Once the page has followed the search.
    Connections {
        target: page

        function onTextsChanged() {
            noMatch.text = page.empty && surface.workbench.search !== "" ? page.emptyTitle : "";
        }
    }

    Announcement {
        id: noMatch

        text: ""
    }

    PageList {
        id: list

        anchors.fill: parent
        focus: true
        head: head
        model: page.rows
        onLastRowRemoved: surface.focusSearch()

        Accessible.role: Accessible.LayeredPane
        Accessible.name: "已收下"

        KeptHead {
            id: head

            parent: list.contentItem
            x: list.columnX
            width: list.columnWidth
            page: page
        }

        CountedRows {
            id: rows

            pane: list
            count: list.count
        }

        delegate: PaneRow {
            id: place

            required property keptRow row
            required property int index

            pane: list
            companions: rows
            position: index
            width: list.width
            implicitHeight: slice.implicitHeight

            Keys.onPressed: event => event.accepted = list.walk(place.index, event.key)

            CardSlice {
                id: slice

                x: list.columnX
                width: list.columnWidth
                height: implicitHeight
                first: place.index === 0
                last: place.index === list.count - 1

                Optional {
                    when: !place.row.custom

                    KeptInformationRow {
                        width: slice.width
                        focus: true
                        row: place.row
                        counted: place.counted
                        onOpened: surface.workbench.openThread(row.itemId)
                        onRemoved: surface.remove(row, place.index)
                    }
                }

                Optional {
                    when: place.row.custom

                    CustomSourceRow {
                        width: slice.width
                        focus: true
                        row: place.row
                        counted: place.counted
                        onRemoved: surface.remove(row, place.index)
                    }
                }
            }
        }
    }
}
