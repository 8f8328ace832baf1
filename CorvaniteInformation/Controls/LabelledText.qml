// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A paragraph that opens with a bold label. Both are plain text: the label is a text of its own,
/// and the first line leaves its place free.
AppText {
    id: paragraph

    required property string label

    Accessible.name: paragraph.label + paragraph.text

    // Lines that are laid out by hand stand at the bottom of a fixed height, all others at its top.
    onLineLaidOut: line => {
        line.y -= textStyle.lineHeight - textStyle.ownHeight;
        if (line.number === 0) {
            line.x = bold.implicitWidth;
            line.width = paragraph.width - bold.implicitWidth;
        }
    }

    AppText {
        id: bold

        text: paragraph.label
        textStyle: TypeScale.bodyBold
        color: paragraph.color
        wrapMode: Text.NoWrap
        Accessible.ignored: true
    }
}
