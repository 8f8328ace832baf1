import QtQuick
import CorvaniteInformation

/// A text in one step of the type scale: plain, wrapping, its lines of a fixed height.
Text {
    id: text

    property TextStyle textStyle: InformationTheme.body

    color: InformationTheme.ink
    font: text.textStyle.font
    lineHeight: text.textStyle.lineHeight
    lineHeightMode: Text.FixedHeight
    topPadding: text.textStyle.spaceAbove
    bottomPadding: text.textStyle.spaceBelow
    textFormat: Text.PlainText
    wrapMode: Text.Wrap

    Accessible.role: Accessible.StaticText
    Accessible.name: text.text
}
