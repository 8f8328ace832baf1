// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// Keys, and what they do.
Item {
    id: key

    required property labelledTextRow row

    readonly property int keysWidth: 192

    implicitHeight: Math.max(keys.height, action.height)

    // As of a SheetText.
    Accessible.role: Accessible.Paragraph
    Accessible.name: key.row.name

    AppText {
        id: keys

        width: key.keysWidth
        text: key.row.label
        textStyle: TypeScale.smallBold
        Accessible.ignored: true
    }

    AppText {
        id: action

        x: key.keysWidth + 16
        width: parent.width - x
        text: key.row.text
        textStyle: TypeScale.small
        color: InformationTheme.ink2
        Accessible.ignored: true
    }
}
