import QtQuick
import CorvaniteInformation.Controls

/// The short bold line above a title.
AppText {
    color: InformationTheme.accent
    textStyle: InformationTheme.eyebrow
}
