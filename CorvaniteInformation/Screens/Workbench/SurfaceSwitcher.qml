// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls

/// The segments that choose the surface. The Tab key stops at the chosen one alone; the arrow keys
/// choose its neighbours.
Rectangle {
    id: switcher

    property list<SurfaceEntry> surfaces
    required property int current

    /// Segments share the width evenly instead of fitting their labels.
    property bool stretched: false

    signal chosen(int surface)

    implicitWidth: segments.implicitWidth + 6
    implicitHeight: 36
    color: InformationTheme.track
    radius: 10

    Accessible.role: Accessible.PageTabList

    Row {
        id: segments

        anchors.centerIn: parent

        Repeater {
            id: repeater

            model: switcher.surfaces

            SurfaceSegment {
                required property SurfaceEntry modelData
                required property int index

                width: switcher.stretched ? Math.floor((switcher.width - 6) / switcher.surfaces.length) : implicitWidth
                text: modelData.label
                iconPath: modelData.iconPath
                selected: modelData.surface === switcher.current
                onClicked: switcher.chosen(modelData.surface)
                Keys.onLeftPressed: switcher.choose(index - 1)
                Keys.onRightPressed: switcher.choose(index + 1)
            }
        }
    }

    function choose(index: int) {
        const segment = repeater.itemAt(index);
        if (segment === null)
            return;
        segment.forceActiveFocus(Qt.TabFocusReason);
        chosen(surfaces[index].surface);
    }
}
