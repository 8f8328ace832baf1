import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One featured entry of a day: its title, and its lane at the far end.
Item {
    id: entry

    required property dayEntryRow row

    implicitHeight: title.height

    AppText {
        id: title

        width: parent.width - (lane.visible ? lane.width + 24 : 0)
        text: entry.row.title
        maximumLineCount: InformationTheme.longestName
        elide: Text.ElideRight
        color: entry.row.resolved ? InformationTheme.ink : InformationTheme.ink3
    }

    Row {
        id: lane

        anchors.right: parent.right
        height: InformationTheme.body.lineHeight
        visible: entry.row.resolved
        spacing: 6

        LaneSquare {
            anchors.verticalCenter: parent.verticalCenter
            color: entry.row.laneColor
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            text: entry.row.laneName
            textStyle: InformationTheme.meta
            color: InformationTheme.ink2
            wrapMode: Text.NoWrap
        }
    }
}
