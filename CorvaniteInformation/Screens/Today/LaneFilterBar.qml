// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The chips that choose which lane today's lists show. The arrow keys choose the neighbours. Where they
/// would not fit in a line they move together.
Item {
    id: bar

    required property TodayPage page

    readonly property int roomySpacing: 6
    readonly property bool tight: lead.width + chips.roomyWidth > width

    implicitHeight: flow.height

    // Not in the group: a screen reader counts what is there besides the chips.
    AppText {
        id: caption

        y: (lead.height - height) / 2
        text: "筛选："
        textStyle: TypeScale.caption
        color: InformationTheme.ink3
        wrapMode: Text.NoWrap
    }

    Flow {
        id: flow

        width: parent.width
        spacing: bar.tight ? 4 : bar.roomySpacing

        Accessible.role: Accessible.Grouping
        Accessible.name: caption.text

        Item {
            id: lead

            width: caption.implicitWidth + 2
            height: 28
        }

        Repeater {
            id: chips

            readonly property real roomyWidth: {
                let sum = 0;
                for (let i = 0; i < count; ++i)
                    sum += bar.roomySpacing + ((itemAt(i) as Chip)?.roomyWidth ?? 0);
                return sum;
            }

            model: bar.page.lanes

            Chip {
                required property laneChipRow row
                required property int index

                text: row.text
                square: row.square
                selected: row.selected
                tight: bar.tight
                onClicked: bar.page.selectLane(row.lane)
                Keys.onLeftPressed: bar.choose(index - 1)
                Keys.onRightPressed: bar.choose(index + 1)
            }
        }
    }

    function choose(index: int) {
        const chip = chips.itemAt(index) as Chip;
        chip?.forceActiveFocus(Qt.TabFocusReason);
        chip?.clicked();
    }
}
