// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A scroll bar that lies over the content and shows while the content moves or the pointer is on
/// it. It keeps off the window's edge, where a drag resizes the window. Not the toolkit's own, which
/// would bring a further library into the start of the program.
MouseArea {
    id: bar

    required property PaneScroller scroller

    readonly property Flickable pane: scroller.pane
    readonly property int endSpace: 4
    readonly property int shortest: 32
    readonly property real track: height - 2 * endSpace
    readonly property bool shown: pane.movingVertically || containsMouse || pressed

    /// Where the pointer holds the thumb.
    property real grip

    function drag(y: real) {
        scroller.scrollToShare((y - grip - endSpace) / (track - thumb.height));
    }

    parent: pane
    x: pane.width - width
    width: 14
    height: pane.height
    visible: scroller.way > 0
    hoverEnabled: true
    preventStealing: true

    onPressed: event => {
        const onThumb = event.y >= thumb.y && event.y < thumb.y + thumb.height;
        grip = onThumb ? event.y - thumb.y : thumb.height / 2;
        drag(event.y);
    }
    onPositionChanged: event => {
        if (pressed)
            drag(event.y);
    }

    Rectangle {
        id: thumb

        y: bar.endSpace + (bar.track - height) * bar.scroller.share
        width: 8
        height: Math.min(bar.track - 1, Math.max(bar.shortest, bar.track * bar.pane.height / (bar.scroller.way + bar.pane.height)))
        radius: 4
        color: bar.containsMouse || bar.pressed ? InformationTheme.scrollThumbHover : InformationTheme.scrollThumb
        opacity: bar.shown ? 1 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: InformationTheme.scrimDuration
            }
        }
    }
}
