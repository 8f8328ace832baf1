// SPDX-License-Identifier: Apache-2.0

import QtQml
import CorvaniteInformation.Controls

/// Has the Tab key stop at a line that is seen, where the one at which it stopped has gone out of sight.
Connections {
    required property PaneList list
    /// The line at which the Tab key stops, of `list` the last row that has a stop.
    required property int railStop

    signal moved(position: int)

    target: RowReach

    function onTabPressed() {
        if (list.itemAtIndex(list.lastStop))
            return;
        const seen = list.indexAt(list.width / 2, list.contentY + list.height / 2);
        const position = seen - (list.lastStop - railStop);
        if (position >= 0)
            moved(position);
    }
}
