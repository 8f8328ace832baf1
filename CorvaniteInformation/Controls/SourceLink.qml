// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A text of any length that opens an address; plain text where there is no address to open.
AppButton {
    id: link

    required property string address
    property TextStyle textStyle: TypeScale.small
    property color restTint: InformationTheme.accent
    /// An arrow that leads out stands after the text.
    property bool hasArrow: true

    readonly property color tint: !enabled ? InformationTheme.ink3 : down ? InformationTheme.ink2 : restTint
    readonly property font restFont: textStyle.font
    readonly property font hoverFont: Qt.font({
        family: restFont.family,
        pixelSize: restFont.pixelSize,
        underline: true
    })
    readonly property real arrowSpace: arrow.visible ? 4 + arrow.width : 0
    /// The height of the text alone. The link is taller than it looks, to be easy to press.
    readonly property real textHeight: label.height

    implicitWidth: Math.max(16, Math.ceil(metrics.advanceWidth)) + arrowSpace
    implicitHeight: Math.max(32, textHeight)
    radius: 2
    enabled: link.address !== ""

    Accessible.role: link.enabled ? Accessible.Link : Accessible.StaticText

    onClicked: LinkOpener.open(link.address)

    HandCursor {}

    // A text's own implicit width would change with the width that is made from it.
    TextMetrics {
        id: metrics

        font: link.restFont
        text: link.text
    }

    AppText {
        id: label

        anchors.verticalCenter: parent.verticalCenter
        width: link.width - link.arrowSpace
        text: link.text
        textStyle: link.textStyle
        font: link.hovered && !link.down ? link.hoverFont : link.restFont
        color: link.tint
        maximumLineCount: InformationTheme.longestName
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Icon {
        id: arrow

        x: Math.ceil(label.contentWidth) + 4
        anchors.bottom: label.bottom
        anchors.bottomMargin: (link.textStyle.lineHeight - height) / 2
        visible: link.enabled && link.hasArrow
        path: IconPaths.openOutside
        size: 14
        color: link.tint
    }
}
