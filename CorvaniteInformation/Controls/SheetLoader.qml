// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// Makes a Sheet when it is asked for, and drops it when it has closed. The type is not named: it
/// would be loaded before the window shows.
Loader {
    id: loader

    /// Makes the sheet of that file, with these initial properties.
    function show(file: url, properties: var) {
        setSource(file, properties);
    }

    Connections {
        target: loader.item

        function onClosed() {
            loader.source = "";
        }
    }
}
