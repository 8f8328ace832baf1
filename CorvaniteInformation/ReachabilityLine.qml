import QtQuick
import CorvaniteInformation

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

    SourceLink {
        anchors.verticalCenter: parent.verticalCenter
        visible: line.row.hasAlternate
        text: "备选原文 ↗"
        hasArrow: false
        address: line.row.alternateAddress
    }
}
