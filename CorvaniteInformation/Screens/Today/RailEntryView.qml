// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One place of the list of everything: its head or a line.
FocusScope {
    id: view

    required property todayEntry row
    required property TodayPage page
    required property int railStop

    signal lineFocused(position: int)
    /// The focus is to go to the line that many lines further.
    signal stepped(by: int)

    implicitHeight: face.height

    Column {
        id: face

        width: view.width

        Optional {
            when: view.row.isRailHeading

            RailHeading {
                width: view.width
            }
        }

        Optional {
            when: view.row.isRailLine

            Item {
                width: view.width
                height: line.height

                RailLine {
                    id: line

                    focus: true
                    x: -overhang
                    width: parent.width + 2 * overhang
                    row: view.row.rail
                    count: view.page.railCount
                    tabStop: row.position === view.railStop
                    onClicked: view.page.workbench.openThread(row.signalId)
                    onStepped: by => view.stepped(by)
                    onActiveFocusChanged: if (activeFocus) view.lineFocused(row.position)
                }
            }
        }
    }
}
