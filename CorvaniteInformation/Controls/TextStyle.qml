// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// One step of the type scale: a font and the fixed height of its lines in pixels.
QtObject {
    id: style

    required property font font
    required property int lineHeight

    // Text puts the font's own line at the top of a fixed one and counts what stands out below;
    // these paddings centre it and make the text as high as its lines.
    readonly property int spaceAbove: Math.floor((lineHeight - ownHeight) / 2)
    readonly property int spaceBelow: Math.min(0, lineHeight - ownHeight) - spaceAbove
    readonly property int ownHeight: Math.ceil(metrics.height)
    readonly property FontMetrics metrics: FontMetrics {
        font: style.font
    }
}
