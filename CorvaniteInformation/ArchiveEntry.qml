import QtQuick
import CorvaniteInformation

/// One featured signal of a day in the archive's index.
Item {
    id: entry

    required property archiveEntryRow row

    implicitHeight: line.height

    AppText {
        y: 2
        width: 32
        text: entry.row.number
        textStyle: InformationTheme.meta
        color: InformationTheme.ink3
        wrapMode: Text.NoWrap
    }

    TrailedText {
        id: line

        x: 32
        width: parent.width - x
        text: entry.row.title
        trail: entry.row.lane
    }
}
