pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Screens.Archive
import CorvaniteInformation.Screens.Kept
import CorvaniteInformation.Screens.Sources
import CorvaniteInformation.Screens.Today
import CorvaniteInformation.Screens.Weekly
import CorvaniteInformation.State

/// The five surfaces, of which the current one shows. Each is made when it is first visited, and
/// stays as the reader left it.
FocusScope {
    id: surfaces

    required property InformationModel workbench

    readonly property int current: workbench.surface

    Accessible.role: Accessible.Pane

    onCurrentChanged: appearing.restart()

    function searchKept() {
        workbench.surface = InformationModel.Kept;
        (kept.itemAt(0) as KeptSurface).focusSearch();
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

    /// Makes its delegate at the first visit of a surface, and not before there is a place for it:
    /// what is laid out twice jumps.
    component Visited: Optional {
        required property int surface

        readonly property bool isCurrent: surfaces.current === surface
        readonly property bool isDue: isCurrent && surfaces.height > 0

        property bool visited: false

        when: visited
        onIsDueChanged: visited = visited || isDue
    }

    Visited {
        id: today

        surface: InformationModel.Today

        TodaySurface {
            anchors.fill: surfaces
            visible: today.isCurrent
            focus: visible
            workbench: surfaces.workbench
        }
    }

    Visited {
        id: kept

        surface: InformationModel.Kept

        KeptSurface {
            anchors.fill: surfaces
            visible: kept.isCurrent
            focus: visible
            workbench: surfaces.workbench
        }
    }

    Visited {
        id: weekly

        surface: InformationModel.Weekly

        WeeklyDigestView {
            anchors.fill: surfaces
            visible: weekly.isCurrent
            focus: visible
            workbench: surfaces.workbench
        }
    }

    Visited {
        id: archive

        surface: InformationModel.Archive

        ArchiveView {
            anchors.fill: surfaces
            visible: archive.isCurrent
            focus: visible
            workbench: surfaces.workbench
        }
    }

    Visited {
        id: sources

        surface: InformationModel.Sources

        SourcesView {
            anchors.fill: surfaces
            visible: sources.isCurrent
            focus: visible
            workbench: surfaces.workbench
        }
    }
}
