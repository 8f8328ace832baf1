// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// Scrolls a pane by the keyboard: to what takes the focus in it, and by the keys that turn pages.
/// The pane forwards its keys here.
Item {
    id: scroller

    required property Flickable pane

    readonly property real firstY: pane.originY - pane.topMargin
    readonly property real lastY: Math.max(firstY, pane.originY + pane.contentHeight + pane.bottomMargin - pane.height)
    /// How far the pane scrolls, and the share of that above what it shows.
    readonly property real way: lastY - firstY
    readonly property real share: way > 0 ? (pane.contentY - firstY) / way : 0
    readonly property Item focused: pane.Window.activeFocusItem

    /// Where what the pane shows began before that changed last.
    property real formerFirstY: 0

    /// What is kept free above and below the item that is scrolled to.
    readonly property real air: 16
    readonly property real line: 48
    readonly property real leap: pane.height - line
    /// How fast a way may begin, in pixels a millisecond: some 300 in a frame, a card's height.
    readonly property real topSpeed: 18

    // What was at its top stays there when the room above it changes. A leap down also changes it,
    // once the pane stands elsewhere.
    onFirstYChanged: {
        if (goal() <= formerFirstY) {
            if (glide.running)
                glideBy(firstY - goal());
            else
                scrollTo(firstY);
        }
        formerFirstY = firstY;
    }

    NumberAnimation {
        id: glide

        target: scroller.pane
        property: "contentY"
        easing.type: Easing.OutCubic
    }

    // By pointer or wheel.
    Connections {
        target: scroller.pane

        function onMovementStarted() {
            glide.stop();
        }
    }

    // A press does not scroll what is under the pointer away.
    onFocusedChanged: if (holds(focused) && (focused as Pressable)?.visualFocus !== false)
        reveal(focused, 0, focused.height)

    Keys.onPressed: event => event.accepted = turn(event.key, event.modifiers, event.isAutoRepeat)

    function holds(item: Item): bool {
        let ancestor = item;
        while (ancestor !== null && ancestor !== pane.contentItem)
            ancestor = ancestor.parent;
        return ancestor !== null && item !== pane.contentItem;
    }

    /// Scrolls as little as shows the part of the item from `y` on, its top before its bottom.
    function reveal(item: Item, y: real, height: real) {
        const itemTop = item.mapToItem(pane.contentItem, 0, y).y - air;
        const itemBottom = itemTop + height + 2 * air;
        glide.stop();
        if (itemBottom > pane.contentY + pane.height)
            scrollTo(itemBottom - pane.height);
        if (itemTop < pane.contentY)
            scrollTo(itemTop);
    }

    /// Where the pane comes to rest. Not a property: it would be late while the pane is laid out.
    function goal(): real {
        return glide.running ? glide.to : pane.contentY;
    }

    function scrollToTop() {
        scrollTo(firstY);
    }

    function scrollToShare(share: real) {
        scrollTo(firstY + share * way);
    }

    function scrollTo(y: real) {
        pane.cancelFlick();
        glide.stop();
        pane.contentY = within(y);
    }

    /// Scrolls on from where the pane comes to rest, over some frames: the rows of a page are then not
    /// all made in one.
    function glideBy(distance: real) {
        glideTo(goal() + distance);
    }

    /// As a key that is held does: never more than a page ahead, or the pane would go on without it.
    function glideOn(distance: real) {
        const ahead = goal() + distance - pane.contentY;
        glideTo(pane.contentY + Math.max(-leap, Math.min(leap, ahead)));
    }

    function glideTo(y: real) {
        pane.cancelFlick();
        glide.to = within(y);
        glide.duration = durationOf(Math.abs(glide.to - pane.contentY));
        glide.restart();
    }

    /// Of a way, which begins three times as fast as it is on the whole.
    function durationOf(way: real): int {
        return InformationTheme.reducedMotion ? 0 : Math.max(InformationTheme.pageDuration, 3 * way / topSpeed);
    }

    function within(y: real): real {
        return Math.max(firstY, Math.min(lastY, y));
    }

    function turn(key: int, modifiers: int, held: bool): bool {
        // The desktop's own keys, such as Alt+Space.
        if (modifiers & (Qt.AltModifier | Qt.ControlModifier | Qt.MetaModifier))
            return false;
        const go = held ? glideOn : glideBy;
        switch (key) {
        case Qt.Key_PageDown:
            go(leap);
            return true;
        case Qt.Key_PageUp:
            go(-leap);
            return true;
        case Qt.Key_Space:
            go(modifiers & Qt.ShiftModifier ? -leap : leap);
            return true;
        case Qt.Key_Down:
            go(line);
            return true;
        case Qt.Key_Up:
            go(-line);
            return true;
        case Qt.Key_Home:
            scrollToTop();
            return true;
        case Qt.Key_End:
            scrollTo(lastY);
            return true;
        default:
            return false;
        }
    }
}
