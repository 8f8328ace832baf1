// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The rows of a pane that a screen reader counts together. It counts whatever stands beside a row,
/// so the pane's headings and buttons stand elsewhere.
CountedItem {
    id: rows

    required property PaneList pane

    /// Not of very many, each of which it would ask for.
    readonly property bool countable: count <= 100

    parent: pane.contentItem

    Accessible.role: Accessible.List
    Accessible.ignored: children.length === 0

    ReadingOrder {
        items: rows
    }
}
