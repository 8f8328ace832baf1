// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A small heading over a paragraph.
Column {
    id: section

    required property string heading
    required property string text
    property color tint: InformationTheme.ink

    spacing: 4

    HeadingText {
        width: parent.width
        text: section.heading
        textStyle: TypeScale.smallBold
    }

    SheetText {
        width: parent.width
        text: section.text
        color: section.tint
    }
}
