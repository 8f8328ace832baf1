// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// One row of a pane.
FocusScope {
    id: row

    required property PaneList pane
    /// The rows that a screen reader counts it with, and its place among them, from 0.
    property CountedRows companions: null
    property int position: 0
    readonly property bool counted: companions?.countable ?? false

    /// It is no longer in the list, and only stays while the pane needs it.
    property bool gone: false
    readonly property Item home: counted && !gone ? companions : pane.contentItem

    visible: !gone
    height: gone ? 0 : implicitHeight

    ListView.delayRemove: pane.leaving === row
    ListView.onRemove: gone = true

    // A list puts all its rows beside each other.
    onParentChanged: if (parent !== null)
        parent = home
    onHomeChanged: parent = home
}
