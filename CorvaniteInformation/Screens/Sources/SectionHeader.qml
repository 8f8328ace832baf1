// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The head of a section of the sources page.
Column {
    id: header

    required property string eyebrow
    required property string subtitle

    spacing: 4

    EyebrowText {
        width: parent.width
        text: header.eyebrow
    }

    HeadingText {
        width: parent.width
        text: header.subtitle
        textStyle: TypeScale.title3
    }
}
