// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The ring around a control that has the keyboard's focus, two pixels off its edge; on rows and
/// cards it lies inside the edge.
Rectangle {
    property real controlRadius: 0
    property bool inside: false

    anchors.fill: parent
    anchors.margins: inside ? 0 : -4
    color: "transparent"
    radius: inside ? controlRadius : controlRadius + 4
    border {
        width: 2
        color: InformationTheme.ring
    }
}
