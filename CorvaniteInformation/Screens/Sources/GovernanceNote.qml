// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// How sources come in and go, in a box of its own.
Rectangle {
    id: note

    required property SourcesPage page

    implicitHeight: texts.height + 40
    radius: InformationTheme.cardRadius
    color: "transparent"
    border.color: InformationTheme.hairStrong

    Icon {
        x: 24
        y: 22
        path: IconPaths.governance
        size: 20
        color: InformationTheme.accent
    }

    Column {
        id: texts

        x: 60
        y: 20
        width: parent.width - x - 24
        spacing: 4

        AppText {
            width: parent.width
            text: note.page.governanceHeadline
            textStyle: TypeScale.bodyBold
        }

        AppText {
            width: parent.width
            text: note.page.governanceText
            color: InformationTheme.ink2
        }
    }
}
