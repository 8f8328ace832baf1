// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The featured signals of each day, folded by week.
FocusScope {
    id: surface

    required property InformationModel workbench

    Window.onActiveChanged: if (Window.active)
        page.refresh()

    WeeklyPage {
        id: page

        workbench: surface.workbench
        shown: surface.visible
    }

    PageList {
        id: list

        anchors.fill: parent
        focus: true
        head: head
        model: page.rows

        Accessible.role: Accessible.List
        Accessible.name: "周报精选"

        Column {
            id: head

            parent: list.contentItem
            x: list.columnX
            width: list.columnWidth
            bottomPadding: 32
            spacing: 32

            PageIntro {
                width: parent.width
                title: "周报精选"
                lead: "每日焦点按周折叠，由记录自动生成，不是事后改写。"
            }

            AppText {
                width: parent.width
                visible: page.empty
                text: "还没有归档的天数。同步站点后，每天的焦点会自动折进周报。"
                color: InformationTheme.ink2
            }
        }

        delegate: Item {
            id: place

            required property weeklyPlace row
            required property int index

            width: list.width
            implicitHeight: face.height

            Column {
                id: face

                x: list.columnX
                width: list.columnWidth

                Optional {
                    when: !place.row.isDay

                    WeekHead {
                        width: face.width
                        topPadding: place.index === 0 ? 0 : 32
                        row: place.row.week
                    }
                }

                Optional {
                    when: place.row.isDay

                    WeekDay {
                        width: face.width
                        row: place.row.day
                        onOpened: surface.workbench.openArchiveDay(row.date)
                    }
                }
            }
        }
    }
}
