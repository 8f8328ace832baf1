// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// A slice of a signal's further sources; the first stands below a rule and a heading.
Column {
    id: links

    required property threadRow row

    topPadding: 20

    Optional {
        when: links.row.first

        Column {
            width: links.width
            bottomPadding: 4
            spacing: 16

            Hairline {}

            HeadingText {
                width: parent.width
                text: "更多原文"
                textStyle: TypeScale.smallBold
            }
        }
    }

    Flow {
        width: parent.width
        spacing: 20

        Repeater {
            model: links.row.sources

            SourceLink {
                required property relatedSourceRow modelData

                width: Math.min(implicitWidth, links.width)
                text: modelData.label
                address: modelData.address
            }
        }
    }
}
