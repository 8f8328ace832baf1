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

    /// The row goes; where the keyboard was on it, it goes on with what takes the row's place.
    function remove(row: keptRow, index: int) {
        const byKeyboard = (surface.Window.activeFocusItem as Pressable)?.visualFocus ?? false;
        page.remove(row);
        if (byKeyboard && !list.focusRow(Math.min(index, list.count - 1)))
            focusSearch();
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

        Accessible.role: Accessible.List
        Accessible.name: "已收下"

        KeptHead {
            id: head

            parent: list.contentItem
            x: list.columnX
            width: list.columnWidth
            page: page
        }

        delegate: FocusScope {
            id: place

            required property keptRow row
            required property int index

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
                        onRemoved: surface.remove(row, place.index)
                    }
                }
            }
        }
    }
}
