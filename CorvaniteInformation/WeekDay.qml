pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation

/// One day of a week: its date, what was featured, the way to the whole day.
Item {
    id: day

    required property weekDayRow row
    /// A rule separates the day from the one above.
    required property bool ruled

    signal opened

    implicitHeight: Math.max(date.height, list.height) + 36

    Rectangle {
        x: 24
        width: parent.width - 48
        height: 1
        visible: day.ruled
        color: InformationTheme.hair
    }

    Column {
        id: date

        x: 24
        y: 20
        width: 136
        spacing: 2

        AppText {
            width: parent.width
            text: day.row.label
            textStyle: InformationTheme.bodyBold
        }

        AppText {
            width: parent.width
            text: day.row.count
            textStyle: InformationTheme.caption
            color: InformationTheme.ink2
        }
    }

    Column {
        id: list

        x: 184
        y: 20
        width: parent.width - x - 24
        spacing: 4

        Repeater {
            model: day.row.entries

            WeekEntry {
                required property weekEntryRow modelData

                width: list.width
                row: modelData
            }
        }

        LinkText {
            text: "查看当日完整精选 →"
            Accessible.name: day.row.linkName
            onClicked: day.opened()
        }
    }
}
