import QtQuick
import CorvaniteInformation

/// The short bold line above a title.
AppText {
    color: InformationTheme.accent
    textStyle: InformationTheme.eyebrow
}
