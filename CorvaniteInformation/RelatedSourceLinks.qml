pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation

/// Further sources of a signal.
Column {
    id: links

    required property list<relatedSourceRow> sources

    HeadingText {
        width: parent.width
        text: "更多原文"
        textStyle: InformationTheme.smallBold
    }

    Flow {
        width: parent.width
        spacing: 20

        Repeater {
            model: links.sources

            SourceLink {
                required property relatedSourceRow modelData

                width: Math.min(implicitWidth, links.width)
                text: modelData.label
                address: modelData.address
            }
        }
    }
}
