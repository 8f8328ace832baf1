// SPDX-License-Identifier: Apache-2.0

import QtQuick

/// What fills the window between header and footer.
FocusScope {
    /// Gives the focus to the surface's search field, where it has one.
    function focusSearch() {
    }
}
