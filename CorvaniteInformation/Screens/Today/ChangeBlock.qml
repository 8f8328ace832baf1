// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls

/// Says what changed with an update; unfolds and folds.
Item {
    id: block

    required property string text
    required property bool open

    property real unfolded: open ? 1 : 0

    implicitHeight: unfolded * face.height
    visible: unfolded > 0
    opacity: unfolded
    clip: unfolded < 1

    Behavior on unfolded {
        NumberAnimation {
            duration: InformationTheme.disclosureDuration
            easing.type: Easing.OutCubic
        }
    }

    Column {
        id: face

        width: block.width

        Optional {
            when: block.open || block.unfolded > 0

            ChangeBlockFace {
                width: block.width
                text: block.text
            }
        }
    }
}
