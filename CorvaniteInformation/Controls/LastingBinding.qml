import QtQml

/// Binds a property while a condition holds. After that the property stays as it was, for what still
/// shows while it fades out.
Binding {
    restoreMode: Binding.RestoreNone
}
