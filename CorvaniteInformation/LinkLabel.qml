import QtQuick
import CorvaniteInformation

/// The face of a link, underlined under the pointer.
ButtonLabel {
    id: label

    Rectangle {
        parent: label.textItem
        anchors.top: parent.baseline
        anchors.topMargin: 2
        width: parent.width
        height: 1
        visible: label.control.hovered && !label.control.down
        color: label.control.tint
    }
}
