import QtQuick
import QtQuick.Templates as T
import CorvaniteInformation

/// What a button's look is made of.
T.AbstractButton {
    id: control

    property TextStyle textStyle: InformationTheme.quietLabel
    property color tint: InformationTheme.ink
    property color iconTint: control.tint
    property color ground: "transparent"
    property color outline: "transparent"
    property real radius: InformationTheme.quietRadius

    property string iconPath: ""
    property real iconSize: 16
    property real iconStroke: 1.75
    property real iconRotation: 0
    /// The icon stands after the label.
    property bool iconTrails: false

    /// A sentence that tells more than the label, shown as a tooltip.
    property string help: ""
}
