pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation

/// One week of the weekly digest with its days.
Column {
    id: section

    required property weekRow row

    signal dayOpened(string date)

    spacing: 16

    Item {
        width: parent.width
        height: summary.y + summary.height

        HeadingText {
            id: range

            width: Math.min(implicitWidth, parent.width - badge.width - 12)
            text: section.row.range
            textStyle: InformationTheme.title1
        }

        Tag {
            id: badge

            anchors.left: range.right
            anchors.leftMargin: 12
            y: (InformationTheme.title1.lineHeight - height) / 2
            text: section.row.badge
            kind: section.row.running ? Tag.Running : Tag.Neutral
        }

        AppText {
            id: summary

            anchors.top: range.bottom
            anchors.topMargin: 4
            width: parent.width
            text: section.row.summary
            textStyle: InformationTheme.small
            color: InformationTheme.ink2
        }
    }

    Rectangle {
        width: parent.width
        height: days.height
        radius: InformationTheme.cardRadius
        color: InformationTheme.card
        border.color: InformationTheme.hair

        Column {
            id: days

            width: parent.width

            Repeater {
                model: section.row.days

                WeekDay {
                    required property weekDayRow modelData
                    required property int index

                    width: days.width
                    row: modelData
                    ruled: index > 0
                    onOpened: section.dayOpened(row.date)
                }
            }
        }
    }
}
