// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// What to read today: a column of cards and, beside it or below, the list of everything.
FocusScope {
    id: surface

    required property InformationModel workbench

    // Without a width yet, as in the window's usual one: what is laid out twice jumps.
    readonly property bool twoPanes: width === 0 || width >= 980
    readonly property bool wide: width >= 1440
    readonly property int railWidth: !twoPanes ? 0 : wide ? 360 : 304

    /// The reader wants the remaining cards; they unfold and fold.
    property bool open: false
    property real unfolded: open ? 1 : 0
    /// Those that are seen then. The others keep their height: rows without one would all be made at
    /// once.
    property int foldingCards: 0

    Behavior on unfolded {
        NumberAnimation {
            duration: InformationTheme.disclosureDuration
            easing.type: Easing.OutCubic
        }
    }

    /// The line of the list of everything at which the Tab key stops.
    property int railLine: 0
    readonly property int railStop: Math.min(railLine, todayPage.railCount - 1)

    Window.onActiveChanged: if (Window.active)
        todayPage.refresh()

    TodayPage {
        id: todayPage

        workbench: surface.workbench
        showingRemaining: surface.open || surface.unfolded > 0
        shown: surface.visible
    }

    JoinedRows {
        id: joined

        first: todayPage.entries
        second: surface.twoPanes ? null : todayPage.railEntries
    }

    PaneList {
        id: column

        readonly property real columnWidth: Math.min(surface.wide ? 760 : 720, width - 48)

        width: surface.width - surface.railWidth
        height: parent.height
        topMargin: surface.wide ? 40 : surface.twoPanes ? 32 : 24
        bottomMargin: (surface.twoPanes ? 24 : 32) + foot.height
        focus: true
        lastStop: surface.twoPanes ? count - 1 : count - todayPage.railCount + surface.railStop
        model: joined

        Accessible.role: Accessible.LayeredPane
        Accessible.name: todayPage.title

        delegate: TodayEntryView {
            required property int index

            pane: column
            companions: !row.isCard ? null : row.folds ? remaining : first
            position: row.position
            width: column.width
            columnWidth: column.columnWidth
            page: todayPage
            railStop: surface.railStop
            open: surface.open
            unfolded: surface.unfolded
            foldingCards: surface.foldingCards
            onRemainingToggled: {
                // With a line of each of its texts a card is higher than 240.
                surface.foldingCards = Math.ceil((column.contentY + column.height - y - height) / 240);
                surface.open = !surface.open;
            }
            onSimilarReduced: signalId => column.removeRow(index, () => surface.workbench.reduceSimilar(signalId))
            onRailLineFocused: position => surface.railLine = position
            onRailStepped: by => column.focusRow(index + by)
        }

        CountedRows {
            id: first

            pane: column
            count: todayPage.focusedCount
        }

        CountedRows {
            id: remaining

            pane: column
            count: todayPage.remainingCount
        }

        Column {
            id: foot

            parent: column.contentItem
            x: Math.round((column.width - width) / 2)
            y: column.originY + column.contentHeight
            width: column.columnWidth

            Optional {
                when: !surface.twoPanes

                RailEnd {
                    width: foot.width
                    page: todayPage
                }
            }
        }
    }

    RailStop {
        enabled: !surface.twoPanes
        list: column
        railStop: surface.railStop
        onMoved: position => surface.railLine = position
    }

    Optional {
        when: surface.twoPanes && !RowReach.opening

        TodayRail {
            x: column.width
            width: surface.railWidth
            height: surface.height
            page: todayPage
            railStop: surface.railStop
            onStopMoved: position => surface.railLine = position
        }
    }
}
