// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// A slice of one day of the archive's index; the slices join to one card. A press opens the day.
AppButton {
    id: section

    required property archiveDayRow row

    /// How far the slice goes on beyond what is to be seen of it, where another one follows.
    readonly property int hiddenAbove: row.opensDay ? 0 : InformationTheme.cardRadius
    readonly property int hiddenBelow: row.closesDay ? 0 : InformationTheme.cardRadius

    signal opened

    implicitHeight: list.y + Math.max(date.height, list.height) + (row.closesDay ? 24 : hiddenBelow)
    activeFocusOnTab: row.opensDay
    radius: InformationTheme.cardRadius
    ringInside: true
    ground: down ? InformationTheme.well : InformationTheme.card
    outline: hovered ? InformationTheme.control : InformationTheme.hair

    Accessible.name: section.row.name

    onClicked: section.opened()

    HandCursor {}

    Column {
        id: date

        x: 24
        y: 24
        width: 112
        visible: section.row.opensDay

        HeadingText {
            width: parent.width
            text: section.row.monthDay
            textStyle: TypeScale.title1
        }

        Flow {
            width: parent.width
            spacing: 8

            AppText {
                width: Math.min(implicitWidth, parent.width)
                text: section.row.weekday
                textStyle: TypeScale.small
                color: InformationTheme.ink2
                maximumLineCount: InformationTheme.longestName
                elide: Text.ElideRight
            }

            Tag {
                visible: section.row.isToday
                text: "今天"
                kind: Tag.Running
            }
        }
    }

    Column {
        id: list

        x: 160
        y: section.row.opensDay ? 24 : section.hiddenAbove + entries.spacing
        width: parent.width - x - 24
        spacing: 8

        Column {
            id: entries

            width: parent.width
            spacing: 5

            AppText {
                visible: section.row.opensDay
                text: "精选："
                textStyle: TypeScale.meta
                color: InformationTheme.ink2
            }

            Repeater {
                model: section.row.entries

                ArchiveDayEntry {
                    required property dayEntryRow modelData

                    width: list.width
                    row: modelData
                }
            }
        }

        Row {
            visible: section.row.closesDay
            spacing: 6

            AppText {
                width: Math.ceil(implicitWidth)
                text: section.row.closing
                textStyle: TypeScale.small
                color: InformationTheme.accent
                wrapMode: Text.NoWrap
            }

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                path: IconPaths.onward
                size: 14
                color: InformationTheme.accent
            }
        }
    }
}
