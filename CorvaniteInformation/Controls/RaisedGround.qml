// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The ground of what floats over the page: the receipt bar and tooltips.
Item {
    id: ground

    required property real radius

    Elevation {
        layers: 4
        drop: 2
        layerColor: InformationTheme.raisedShadow
        cornerRadius: ground.radius
    }

    Rectangle {
        anchors.fill: parent
        color: InformationTheme.raised
        radius: ground.radius
        border.color: InformationTheme.hairStrong
    }
}
