// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One place of the today surface's column, in the face of its kind.
PaneRow {
    id: view

    required property todayEntry row
    required property TodayPage page
    required property real columnWidth
    required property int railStop
    /// The reader wants the remaining cards.
    required property bool open
    /// How far they are open, from 0 to 1.
    required property real unfolded
    /// How many of the remaining cards take and lose their height meanwhile.
    required property int foldingCards

    signal remainingToggled
    signal similarReduced(signalId: string)
    signal railLineFocused(position: int)
    signal railStepped(by: int)

    implicitHeight: face.height * (row.folds && row.position < foldingCards ? unfolded : 1)
    opacity: row.folds ? unfolded : 1
    clip: opacity < 1

    Column {
        id: face

        x: Math.round((view.width - width) / 2)
        topPadding: view.row.isRailHeading ? 16 : 0
        width: view.columnWidth

        Optional {
            when: view.row.isIntro

            TodayIntro {
                width: face.width
                bottomPadding: 20
                page: view.page
            }
        }

        Optional {
            when: view.row.isCard

            Column {
                width: face.width
                bottomPadding: 16

                SignalCard {
                    focus: true
                    width: parent.width
                    row: view.row.card
                    counted: view.counted
                    onClicked: view.page.workbench.openThread(row.signalId)
                    onChangeToggled: view.page.toggleChange(row.signalId)
                    onKeepToggled: view.page.workbench.toggleKeep(row.signalId)
                    onSimilarReduced: view.similarReduced(row.signalId)
                }
            }
        }

        Optional {
            when: view.row.isDisclosure

            Column {
                width: face.width
                bottomPadding: 16

                DisclosureRow {
                    width: parent.width
                    text: view.page.remainingTitle
                    note: "需要时再展开，不会丢失。"
                    open: view.open
                    onClicked: view.remainingToggled()
                }
            }
        }

        Optional {
            when: view.row.isOfRail

            CardSlice {
                id: slice

                width: face.width
                height: implicitHeight
                first: view.row.isRailHeading
                last: false
                ruled: false

                Column {
                    x: 21
                    width: slice.width - 2 * x
                    topPadding: slice.first ? 20 : 0

                    RailEntryView {
                        focus: true
                        width: parent.width
                        row: view.row
                        page: view.page
                        railStop: view.railStop
                        onLineFocused: position => view.railLineFocused(position)
                        onStepped: by => view.railStepped(by)
                    }
                }
            }
        }
    }
}
