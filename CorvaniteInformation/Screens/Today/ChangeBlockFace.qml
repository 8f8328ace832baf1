// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The block that says what changed with an update.
Rectangle {
    id: face

    required property string text

    implicitHeight: content.height
    radius: InformationTheme.blockRadius
    color: InformationTheme.well
    border.color: InformationTheme.hair

    Column {
        id: content

        x: 16
        width: parent.width - 2 * x
        topPadding: 12
        bottomPadding: 16
        spacing: 4

        Row {
            spacing: 8

            HeadingText {
                text: "这次变了什么"
                textStyle: TypeScale.smallBold
            }

            Tag {
                text: "变化"
                kind: Tag.Change
            }
        }

        AppText {
            width: parent.width
            text: face.text
        }
    }
}
