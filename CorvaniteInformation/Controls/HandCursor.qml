// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// Shows the pointer as a hand over what a press opens.
HoverHandler {
    cursorShape: Qt.PointingHandCursor
}
