// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One outside service and what is collected from it.
Item {
    id: bullet

    required property labelledTextRow row

    implicitHeight: text.height

    Icon {
        y: (TypeScale.body.lineHeight - height) / 2
        path: IconPaths.bullet
        filled: true
        size: 8
        color: InformationTheme.accent
    }

    AppText {
        x: 20
        width: 104
        text: bullet.row.label
        textStyle: TypeScale.bodyBold
    }

    AppText {
        id: text

        x: 136
        width: parent.width - x
        text: bullet.row.text
        color: InformationTheme.ink2
    }
}
