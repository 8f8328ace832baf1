// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Pages

/// The rules by which sources are cited.
Column {
    id: section

    required property SourcesPage page

    spacing: 16

    SectionHeader {
        width: parent.width
        eyebrow: section.page.contractEyebrow
        subtitle: section.page.contractSubtitle
    }

    Repeater {
        model: section.page.contractRules

        ContractBullet {
            required property labelledTextRow modelData

            width: section.width
            row: modelData
        }
    }
}
