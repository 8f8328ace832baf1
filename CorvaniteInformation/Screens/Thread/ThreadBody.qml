// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The column of a thread: its main points, how it came to be, the ways to the sources, and for a
/// kept signal the reader's own note.
PageList {
    id: body

    required property ThreadPage page

    readonly property real wholeHeight: topMargin + contentHeight + bottomMargin

    // Many links find room in a line.
    reach: 1200
    sideMargin: 32
    topSpace: 20
    bottomSpace: 28
    head: head
    foot: foot
    model: page.rows

    Column {
        id: head

        parent: body.contentItem
        x: body.columnX
        width: body.columnWidth

        Optional {
            when: body.page.hasDigest

            Column {
                width: head.width
                bottomPadding: 20

                ThreadSection {
                    width: parent.width
                    heading: "页内要点"
                    text: body.page.digest
                }
            }
        }
    }

    delegate: Item {
        id: place

        required property threadRow row

        width: body.width
        implicitHeight: face.height

        Column {
            id: face

            x: body.columnX
            width: body.columnWidth

            Optional {
                when: place.row.isTimeline

                ThreadTimeline {
                    width: face.width
                    row: place.row
                }
            }

            Optional {
                when: place.row.isOriginal

                Column {
                    topPadding: 20

                    CitrineButton {
                        text: "看最新原文"
                        iconPath: IconPaths.openOutside
                        iconStroke: 2.25
                        iconTrails: true
                        onClicked: LinkOpener.open(body.page.originalAddress)
                    }
                }
            }

            Optional {
                when: place.row.isSources

                RelatedSourceLinks {
                    width: face.width
                    row: place.row
                }
            }
        }
    }

    // Not among the rows, which come and go: what the reader writes keeps its editor.
    Column {
        id: foot

        parent: body.contentItem
        x: body.columnX
        width: body.columnWidth

        Optional {
            when: body.page.kept

            Column {
                width: foot.width
                topPadding: body.page.hasSources ? 12 : 20
                spacing: 16

                Hairline {
                    visible: !body.page.hasSources
                }

                KeptNote {
                    width: parent.width
                    thread: body.page
                    onCursorMoved: (editor, y, height) => body.scroller.reveal(editor, y, height)
                }
            }
        }
    }
}
