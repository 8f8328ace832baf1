// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A secondary action: a label that shows its bounds only under the pointer.
LabelButton {
    /// The label's colour at rest.
    property color restTint: InformationTheme.ink

    implicitHeight: 36
    leftPadding: 12
    tint: !enabled ? InformationTheme.ink3 : down ? InformationTheme.ink2 : restTint
    ground: down ? InformationTheme.quietPressed : "transparent"
    outline: hovered && !down ? InformationTheme.control : "transparent"
}
