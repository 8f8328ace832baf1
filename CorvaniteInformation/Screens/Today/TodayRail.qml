// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// Everything of today's selection beside the column, and the data receipt, which stays at the foot
/// while there is room for it.
FocusScope {
    id: rail

    required property TodayPage page
    required property int railStop

    /// The Tab key is to stop at that line from now on.
    signal stopMoved(position: int)

    readonly property bool receiptPinned: height === 0 || height >= 520
    /// Not `atYEnd`, which stays true after rows have come below without a move.
    readonly property bool goesOn: lines.contentY + lines.height + 1 < lines.originY + lines.contentHeight
    readonly property int textX: 21
    readonly property real textWidth: width - textX - 20

    Rectangle {
        width: 1
        height: parent.height
        color: InformationTheme.hair
    }

    PaneList {
        id: lines

        width: parent.width
        height: rail.receiptPinned ? receipt.y : parent.height
        topMargin: 32
        bottomMargin: rail.receiptPinned ? 0 : receipt.height
        focus: true
        firstStop: lastStop
        lastStop: count - rail.page.railCount + rail.railStop
        model: rail.page.railEntries

        Accessible.role: Accessible.List
        Accessible.name: "今日全部"

        delegate: RailEntryView {
            required property int index

            x: rail.textX
            width: rail.textWidth
            page: rail.page
            railStop: rail.railStop
            onLineFocused: position => rail.stopMoved(position)
            onStepped: by => lines.focusRow(index + by)
        }
    }

    RailStop {
        list: lines
        railStop: rail.railStop
        onMoved: position => rail.stopMoved(position)
    }

    Rectangle {
        x: 1
        y: receipt.y - height
        width: parent.width - x
        height: 24
        visible: rail.receiptPinned && rail.goesOn
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Qt.alpha(InformationTheme.canvas, 0)
            }
            GradientStop {
                position: 1
                color: InformationTheme.canvas
            }
        }
    }

    DataReceipt {
        id: receipt

        parent: rail.receiptPinned ? rail : lines.contentItem
        x: rail.textX
        y: rail.receiptPinned ? rail.height - height : lines.originY + lines.contentHeight
        width: rail.textWidth
        bottomPadding: 20
        page: rail.page
    }
}
