// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The program's window: header, the surface chosen, footer, and over them the receipt bar and the
/// error alert.
Window {
    id: window

    required property InformationModel workbench
    /// The desktop's own animations are off.
    required property bool reducedMotion
    /// A screen reader is there.
    required property bool readAloud

    minimumWidth: 720
    minimumHeight: 560
    visible: true
    title: "Corvanite Information"
    // Not by `|`, which Qt 6.4 does not compile ahead of time; see WindowEdge.
    flags: Qt.Window + Qt.FramelessWindowHint
    color: InformationTheme.canvas

    /// Nothing has been drawn yet.
    property bool opening: true

    // With the first frame stands what is read first, with the second all else. What is not seen comes
    // after both.
    Connections {
        id: firstFrames

        target: window

        function onFrameSwapped() {
            if (window.opening) {
                window.opening = false;
                window.update();
            } else {
                firstFrames.target = null;
                window.workbench.probeAppUpdateOnce();
            }
        }
    }

    readonly property bool threadOpen: workbench.hasOpenThread
    onThreadOpenChanged: if (threadOpen)
        threadSheet.show(Qt.resolvedUrl("../Thread/InformationThreadView.qml"), { workbench, home: surfaces, blocked })

    readonly property bool hasErrorMessage: workbench.hasErrorMessage
    onHasErrorMessageChanged: if (hasErrorMessage)
        errorAlert.show(Qt.resolvedUrl("ErrorAlert.qml"), { workbench, home: surfaces, blocked })

    function openHandIn(byKeyboard: bool) {
        handInSheet.show(Qt.resolvedUrl("../HandIn/AddSourceView.qml"), { workbench, home: surfaces, blocked, byKeyboard });
    }

    /// What a sheet blocks: all but what is for the window itself.
    readonly property QtObject blocked: QtObject {
        function contains(at: point): bool {
            const isHandle = edges.contain(at) || buttons.contains(buttons.mapFromItem(null, at)) || header.isHandle(header.mapFromItem(null, at)) || banner.isHandle(banner.mapFromItem(null, at));
            return !isHandle;
        }
    }

    FramePage {
        id: framePage

        workbench: window.workbench
    }

    FocusScope {
        id: page

        anchors.fill: parent
        focus: true

        UpdateBanner {
            id: banner

            anchors.left: parent.left
            anchors.right: parent.right
            window: window
            page: framePage
            home: surfaces
        }

        WorkbenchHeader {
            id: header

            anchors.top: banner.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            window: window
            page: framePage
            buttonsWidth: buttons.width
            surfaces: [
                SurfaceEntry {
                    surface: InformationModel.Today
                    label: "今天"
                    iconPath: IconPaths.today
                },
                SurfaceEntry {
                    surface: InformationModel.Kept
                    label: "已收下"
                    iconPath: IconPaths.kept
                },
                SurfaceEntry {
                    surface: InformationModel.Weekly
                    label: "周报"
                    iconPath: IconPaths.weekly
                },
                SurfaceEntry {
                    surface: InformationModel.Archive
                    label: "往期"
                    iconPath: IconPaths.archive
                },
                SurfaceEntry {
                    surface: InformationModel.Sources
                    label: "信源"
                    iconPath: IconPaths.sources
                }
            ]
            onHandInRequested: byKeyboard => window.openHandIn(byKeyboard)
        }

        WorkbenchSurfaces {
            id: surfaces

            anchors.top: header.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: footer.top
            focus: true
            workbench: window.workbench

            // A pane is no stop of its own: without this the Tab key would begin at the window's top.
            Keys.onTabPressed: stepFocus(true)
            Keys.onBacktabPressed: stepFocus(false)

            function stepFocus(forward: bool) {
                const next = window.activeFocusItem.nextItemInFocusChain(forward);
                next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
            }
        }

        SiteFooter {
            id: footer

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            page: framePage
        }

        Optional {
            when: !window.opening

            ReceiptBar {
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: footer.top
                anchors.bottomMargin: 16
                workbench: window.workbench
                maximumWidth: window.width - 48
                home: surfaces
            }
        }

        // In its sheet a screen reader would say the sheet's name before each, and an empty one after it.
        Announcement {
            text: window.workbench.intakeErrorMessage
        }

        // In the header, but the last stops of the Tab key.
        WindowButtons {
            id: buttons

            anchors.right: parent.right
            anchors.rightMargin: header.sideMargin
            y: header.y + header.rowCenter - height / 2
            window: window
        }
    }

    SheetLoader {
        id: threadSheet
    }

    SheetLoader {
        id: handInSheet
    }

    SheetLoader {
        id: keysSheet
    }

    SheetLoader {
        id: errorAlert
    }

    WindowEdges {
        id: edges

        anchors.fill: parent
        window: window
    }

    Binding {
        target: InformationTheme
        property: "reducedMotion"
        value: window.reducedMotion
    }

    Binding {
        target: RowReach
        property: "readAloud"
        value: window.readAloud
    }

    Binding {
        target: RowReach
        property: "opening"
        value: window.opening
    }

    Instantiator {
        model: header.surfaces

        delegate: Shortcut {
            required property SurfaceEntry modelData
            required property int index

            sequence: `Ctrl+${index + 1}`
            onActivated: {
                window.workbench.surface = modelData.surface;
                surfaces.forceActiveFocus(Qt.ShortcutFocusReason);
            }
        }
    }

    Shortcut {
        sequence: "Ctrl+N"
        onActivated: window.openHandIn(true)
    }

    Shortcut {
        sequences: ["F1", "Ctrl+/"]
        onActivated: keysSheet.show(Qt.resolvedUrl("../Keys/KeysView.qml"), { home: surfaces, blocked: window.blocked })
    }

    Shortcut {
        sequence: "Ctrl+F"
        onActivated: surfaces.searchKept()
    }

    Shortcut {
        sequences: ["Ctrl+R", "F5"]
        onActivated: window.workbench.refreshPackFromSite()
    }

    Shortcut {
        sequence: "Ctrl+Z"
        enabled: window.workbench.canUndo
        onActivated: window.workbench.undoLastAction()
    }

    Shortcut {
        sequence: "Esc"
        enabled: window.workbench.hasReceipt
        onActivated: window.workbench.dismissReceipt()
    }
}
