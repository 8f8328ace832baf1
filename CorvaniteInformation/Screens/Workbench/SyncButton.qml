// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// Fetches the newest content from the site. While that runs it takes no press and its icon turns.
LabelButton {
    id: control

    required property bool running

    property real turn

    implicitHeight: 34
    leftPadding: 12
    enabled: !running
    text: running ? "同步中" : "同步站点"
    iconPath: running ? IconPaths.syncing : IconPaths.sync
    iconRotation: spin.running ? turn : 0
    textStyle: TypeScale.syncLabel
    tint: down ? InformationTheme.ink : InformationTheme.ink2
    ground: down ? InformationTheme.syncPressed : InformationTheme.syncRest
    outline: hovered && !down ? InformationTheme.control : "transparent"

    NumberAnimation on turn {
        id: spin

        running: control.running && !InformationTheme.reducedMotion
        from: 0
        to: 360
        duration: InformationTheme.syncTurnDuration
        loops: Animation.Infinite
    }
}
