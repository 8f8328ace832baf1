import QtQuick

/// One step of the type scale: a font and the fixed height of its lines in pixels.
QtObject {
    required property font font
    required property int lineHeight
}
