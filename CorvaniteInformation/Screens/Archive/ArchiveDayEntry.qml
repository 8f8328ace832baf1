// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One featured signal of a day in the archive's index.
Item {
    id: entry

    required property dayEntryRow row

    implicitHeight: line.height

    AppText {
        id: number

        y: 2
        width: Math.max(32, implicitWidth + 8)
        text: entry.row.number
        textStyle: TypeScale.meta
        color: InformationTheme.ink3
        wrapMode: Text.NoWrap
    }

    TrailedText {
        id: line

        x: number.width
        width: parent.width - x
        text: entry.row.title
        trail: entry.row.laneName
    }
}
