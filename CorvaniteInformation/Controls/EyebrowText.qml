// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The short bold line above a title.
AppText {
    color: InformationTheme.accent
    textStyle: TypeScale.eyebrow
}
