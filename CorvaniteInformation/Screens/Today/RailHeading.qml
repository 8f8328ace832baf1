// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The head of the list of everything.
Column {
    bottomPadding: 12

    HeadingText {
        width: parent.width
        text: "今日全部"
        textStyle: TypeScale.bodyBold
    }

    AppText {
        width: parent.width
        text: "点任意一条打开完整脉络"
        textStyle: TypeScale.meta
        color: InformationTheme.ink3
    }
}
