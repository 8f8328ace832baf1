// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A text field that searches while it is typed in. Escape clears it.
AppTextField {
    id: field

    implicitHeight: 40
    leftPadding: 36
    radius: InformationTheme.searchRadius

    Keys.onEscapePressed: event => {
        event.accepted = field.text !== "";
        field.clear();
    }

    Icon {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        path: IconPaths.search
        color: InformationTheme.ink2
    }
}
