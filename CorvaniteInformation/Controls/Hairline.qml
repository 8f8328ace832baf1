// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A line of one pixel across what it divides.
Rectangle {
    width: parent.width
    height: 1
    color: InformationTheme.hair
}
