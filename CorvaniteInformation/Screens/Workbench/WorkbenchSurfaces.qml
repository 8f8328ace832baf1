// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.State

/// The five surfaces, of which the current one shows. Each is made when it is first visited, and
/// stays as the reader left it. They are known by their files alone: what is named here would be
/// loaded before the window shows.
FocusScope {
    id: surfaces

    required property InformationModel workbench

    readonly property int current: workbench.surface

    onCurrentChanged: appearing.restart()

    function searchKept() {
        workbench.surface = InformationModel.Kept;
        (kept.item as Surface).focusSearch();
    }

    NumberAnimation {
        id: appearing

        target: surfaces
        property: "opacity"
        from: 0
        to: 1
        duration: InformationTheme.surfaceDuration
        easing.type: Easing.OutCubic
    }

    /// Makes its surface at the first visit, and not before there is a place for it: what is laid out
    /// twice jumps.
    component Visited: Loader {
        required property int surface
        required property url file

        readonly property bool isCurrent: surfaces.current === surface
        readonly property bool isDue: isCurrent && surfaces.height > 0

        anchors.fill: parent
        visible: isCurrent
        focus: isCurrent
        onIsDueChanged: if (isDue && !item)
            setSource(file, { workbench: surfaces.workbench, focus: true })
    }

    Visited {
        surface: InformationModel.Today
        file: Qt.resolvedUrl("../Today/TodaySurface.qml")
    }

    Visited {
        id: kept

        surface: InformationModel.Kept
        file: Qt.resolvedUrl("../Kept/KeptSurface.qml")
    }

    Visited {
        surface: InformationModel.Weekly
        file: Qt.resolvedUrl("../Weekly/WeeklyDigestView.qml")
    }

    Visited {
        surface: InformationModel.Archive
        file: Qt.resolvedUrl("../Archive/ArchiveView.qml")
    }

    Visited {
        surface: InformationModel.Sources
        file: Qt.resolvedUrl("../Sources/SourcesView.qml")
    }
}
