// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// Warns of an original that is hard to reach, and offers another one where there is one.
Row {
    id: line

    required property signalCardRow row

    height: 20
    spacing: 12

    Tag {
        text: line.row.reachabilityTag
        kind: line.row.blocked ? Tag.Blocked : Tag.Unstable
    }

    Optional {
        when: line.row.hasAlternate

        SourceLink {
            y: (line.height - height) / 2
            text: "备选原文 ↗"
            hasArrow: false
            address: line.row.alternateAddress
        }
    }
}
