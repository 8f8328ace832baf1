// SPDX-License-Identifier: Apache-2.0

pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation.Controls

/// What every button of the program has in common: the rounded ground, the keyboard's ring, the
/// tooltip, and that a screen reader can press it. Its face is laid out by who derives from it.
Pressable {
    id: control

    /// The name for a screen reader.
    property string text: ""
    /// A sentence that tells more than the name, shown as a tooltip.
    property string help: ""
    property color ground: "transparent"
    property color outline: "transparent"
    property real radius: InformationTheme.quietRadius
    /// The focus ring lies inside the edge.
    property bool ringInside: false

    Accessible.role: Accessible.Button
    Accessible.name: control.text
    Accessible.description: control.help
    Accessible.onPressAction: if (control.enabled) control.clicked()

    Rectangle {
        anchors.fill: parent
        color: control.ground
        radius: control.radius
        border.color: control.outline

        Behavior on color {
            ColorAnimation {
                duration: InformationTheme.pressDuration
            }
        }
        Behavior on border.color {
            ColorAnimation {
                duration: InformationTheme.hoverDuration
            }
        }
    }

    Optional {
        when: control.visualFocus

        FocusRing {
            controlRadius: control.radius
            inside: control.ringInside
        }
    }

    readonly property bool helpDue: help !== "" && hovered
    onHelpDueChanged: if (helpDue)
        tip.setSource("HelpTip.qml", { button: control });
    else
        tip.source = ""

    Loader {
        id: tip
    }
}
