pragma ComponentBehavior: Bound

import QtQuick
import CorvaniteInformation

/// What every button of the program has in common: a label with an optional icon on a rounded
/// ground, pressed by pointer, Space, Enter and a screen reader alike.
ButtonLook {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    spacing: 6

    Accessible.role: Accessible.Button
    Accessible.name: control.text
    Accessible.description: control.help
    Accessible.onPressAction: if (control.enabled) control.clicked()

    Keys.onReturnPressed: event => control.pressedByKey(event)
    Keys.onEnterPressed: event => control.pressedByKey(event)

    function pressedByKey(event: KeyEvent) {
        if (!event.isAutoRepeat)
            control.clicked();
    }

    contentItem: ButtonLabel {
        control: control
    }

    background: Rectangle {
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

    FocusRing {
        shown: control.visualFocus
        controlRadius: control.radius
    }

    // A Loader of 6.4 cannot make a bound component.
    Repeater {
        model: control.help !== "" && control.hovered ? 1 : 0

        Item {
            HelpTip {
                parent: control
                text: control.help
                visible: true
            }
        }
    }
}
