import QtQuick

/// Makes a sheet when it is asked for, and drops it when it has closed.
Loader {
    id: loader

    /// Makes the sheet of that file, with these initial properties.
    function show(file: url, properties: var) {
        setSource(file, properties);
    }

    Connections {
        target: loader.item as Sheet

        function onClosed() {
            loader.source = "";
        }
    }
}
