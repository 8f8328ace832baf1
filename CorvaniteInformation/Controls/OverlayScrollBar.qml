import QtQuick
import QtQuick.Templates as T
import CorvaniteInformation.Controls

/// A scroll bar that lies over the content and shows while the content moves or the pointer is on
/// it. It keeps off the window's edge, where a drag resizes the window.
T.ScrollBar {
    id: bar

    readonly property bool shown: size < 1 && (active || hovered || pressed)

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    verticalPadding: 4
    rightPadding: 6
    minimumSize: height > 0 ? 32 / height : 0

    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: 8
        implicitHeight: 8
        radius: 4
        color: bar.hovered || bar.pressed ? InformationTheme.scrollThumbHover : InformationTheme.scrollThumb
        opacity: bar.shown ? 1 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: InformationTheme.scrimDuration
            }
        }
    }
}
