// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// A slice of one day of a week: its date, what was featured, the way to the whole day.
CardSlice {
    id: day

    required property weekDayRow row

    signal opened

    first: row.opensWeek
    last: row.closesWeek
    ruled: row.opensDay && !first

    Item {
        width: day.width
        height: list.y + Math.max(date.height, list.height) + (day.row.closesDay ? 16 : 0)

        Column {
            id: date

            x: 24
            y: 20
            width: 136

            Optional {
                when: day.row.opensDay

                Column {
                    width: date.width
                    spacing: 2

                    AppText {
                        width: parent.width
                        text: day.row.label
                        textStyle: TypeScale.bodyBold
                    }

                    AppText {
                        width: parent.width
                        text: day.row.count
                        textStyle: TypeScale.caption
                        color: InformationTheme.ink2
                    }
                }
            }
        }

        Column {
            id: list

            x: 184
            y: day.row.opensDay ? 20 : 4
            width: parent.width - x - 24
            spacing: 4

            Repeater {
                model: day.row.entries

                WeekDayEntry {
                    required property dayEntryRow modelData

                    width: list.width
                    row: modelData
                }
            }

            Optional {
                when: day.row.closesDay

                Item {
                    width: link.width
                    height: link.height - 4

                    LinkText {
                        id: link

                        y: -2
                        text: "查看当日完整精选 →"
                        Accessible.name: day.row.linkName
                        onClicked: day.opened()
                    }
                }
            }
        }
    }
}
