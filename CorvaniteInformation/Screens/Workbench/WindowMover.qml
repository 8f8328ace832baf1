import QtQuick

/// A part of a window without a native title bar by which it is moved; a double click maximises or
/// restores it. A DragHandler of 6.4 would begin a second move after the first.
MouseArea {
    id: mover

    required property Window window

    readonly property bool maximized: window.visibility === Window.Maximized
    property point grip

    function toggleMaximized() {
        if (maximized)
            window.showNormal();
        else
            window.showMaximized();
    }

    onPressed: event => grip = Qt.point(event.x, event.y)
    onPositionChanged: event => {
        const distance = Math.max(Math.abs(event.x - grip.x), Math.abs(event.y - grip.y));
        if (distance >= Qt.styleHints.startDragDistance)
            window.startSystemMove();
    }
    onDoubleClicked: toggleMaximized()
}
