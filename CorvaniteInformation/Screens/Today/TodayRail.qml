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

    signal threadRequested(signalId: string)
    signal lineFocused(position: int)

    readonly property bool receiptPinned: height === 0 || height >= 520
    readonly property int textX: 21
    readonly property real textWidth: width - textX - 20

    Binding {
        target: rail.page
        property: "receiptPinned"
        value: rail.receiptPinned
    }

    Rectangle {
        width: 1
        height: parent.height
        color: InformationTheme.hair
    }

    PaneList {
        id: lines

        width: parent.width
        height: foot.y
        topMargin: 32
        bottomMargin: rail.receiptPinned ? 0 : 20
        focus: true
        model: rail.page.railEntries

        Accessible.role: Accessible.List
        Accessible.name: "今日全部"

        delegate: RailEntryView {
            required property int index

            x: rail.textX
            width: rail.textWidth
            page: rail.page
            railStop: rail.railStop
            onThreadRequested: signalId => rail.threadRequested(signalId)
            onLineFocused: position => rail.lineFocused(position)
            onStepped: by => lines.scroller.focusRow(lines, index + by)
        }
    }

    Rectangle {
        x: 1
        y: foot.y - height
        width: parent.width - x
        height: 24
        visible: rail.receiptPinned
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

    Column {
        id: foot

        x: rail.textX
        y: parent.height - height
        width: rail.textWidth

        Optional {
            when: rail.receiptPinned

            DataReceipt {
                width: rail.textWidth
                bottomPadding: 20
                page: rail.page
            }
        }
    }
}
