// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// What is collected directly from outside services.
Column {
    id: section

    required property SourcesPage page

    spacing: 12

    SectionHeader {
        width: parent.width
        eyebrow: section.page.directEyebrow
        subtitle: section.page.directSubtitle
    }

    AppText {
        width: parent.width
        text: section.page.directText
        color: InformationTheme.ink2
    }

    Repeater {
        model: section.page.directItems

        BulletRow {
            required property labelledTextRow modelData

            width: section.width
            row: modelData
        }
    }
}
