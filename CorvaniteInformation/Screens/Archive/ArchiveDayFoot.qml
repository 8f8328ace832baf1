// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// The end of an archived day: how much the day held, and the ways on.
Column {
    id: foot

    required property ArchivePage page

    spacing: 16

    Hairline {
        color: InformationTheme.hairStrong
    }

    Column {
        width: parent.width
        spacing: 12

        AppText {
            width: parent.width
            text: foot.page.day.count
            textStyle: TypeScale.small
            color: InformationTheme.ink2
        }

        DayNavigation {
            width: parent.width
            page: foot.page
        }
    }
}
