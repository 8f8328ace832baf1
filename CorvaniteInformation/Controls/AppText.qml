// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A text in one step of the type scale: plain, wrapping, its lines of a fixed height.
Text {
    id: text

    property TextStyle textStyle: TypeScale.body

    color: InformationTheme.ink
    font: text.textStyle.font
    lineHeight: text.textStyle.lineHeight
    lineHeightMode: Text.FixedHeight
    topPadding: text.textStyle.spaceAbove
    bottomPadding: text.textStyle.spaceBelow
    textFormat: Text.PlainText
    // A line of a word without end takes as long to lay out as the rest of the word; not so where any
    // character may begin a line.
    wrapMode: text.text.length > 5000 ? Text.WrapAnywhere : Text.Wrap

    Accessible.role: Accessible.StaticText
    Accessible.name: text.text
}
