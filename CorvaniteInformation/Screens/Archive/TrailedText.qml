// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A paragraph that ends in a quieter trail. Both are plain text: the trail is a text of its own,
/// behind a dot at the end of the last line where that leaves room for it, else on a line of its own.
Item {
    id: paragraph

    required property string text
    required property string trail

    readonly property real trailX: main.lastLineWidth + dot.implicitWidth
    readonly property bool trailFits: !main.truncated && trailX + end.implicitWidth <= width

    implicitHeight: main.height + (trailFits ? 0 : end.height)

    Accessible.role: Accessible.StaticText
    Accessible.name: paragraph.text + dot.text + paragraph.trail

    AppText {
        id: main

        property real lastLineWidth: 0

        width: parent.width
        text: paragraph.text
        maximumLineCount: InformationTheme.longestName
        elide: Text.ElideRight
        Accessible.ignored: true

        // Lines that are laid out by hand stand at the bottom of a fixed height, all others at its top.
        onLineLaidOut: line => {
            line.y -= textStyle.lineHeight - textStyle.ownHeight;
            if (line.isLast)
                main.lastLineWidth = line.implicitWidth;
        }
    }

    AppText {
        id: dot

        x: main.lastLineWidth
        y: main.height - height
        visible: paragraph.trailFits
        text: " · "
        color: InformationTheme.ink2
        Accessible.ignored: true
    }

    AppText {
        id: end

        x: paragraph.trailFits ? paragraph.trailX : 0
        y: main.height - (paragraph.trailFits ? height : 0)
        width: Math.min(implicitWidth, paragraph.width)
        text: paragraph.trail
        color: InformationTheme.ink2
        Accessible.ignored: true
    }
}
