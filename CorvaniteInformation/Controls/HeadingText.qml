// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A text that a screen reader lists among the headings.
AppText {
    textStyle: TypeScale.title2
    maximumLineCount: InformationTheme.longestName
    elide: Text.ElideRight

    Accessible.role: Accessible.Heading
}
