// SPDX-License-Identifier: Apache-2.0

import QtQml

/// Binds a property while a condition holds. After that the property stays as it was, for what still
/// shows while it fades out. `when` stands before `value`: where both change at once, the one that
/// stands first is told first.
Binding {
    restoreMode: Binding.RestoreNone
}
