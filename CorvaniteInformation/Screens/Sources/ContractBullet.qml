// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One rule of citation.
Column {
    id: bullet

    required property labelledTextRow row

    AppText {
        width: parent.width
        text: bullet.row.label
        textStyle: TypeScale.bodyBold
    }

    AppText {
        width: parent.width
        text: bullet.row.text
        color: InformationTheme.ink2
    }
}
