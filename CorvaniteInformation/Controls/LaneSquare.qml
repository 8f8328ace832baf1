// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// The small square in a lane's colour beside the lane's name.
Rectangle {
    implicitWidth: 8
    implicitHeight: 8
    radius: 2
}
