import QtQuick
import CorvaniteInformation

/// The one primary action of a place.
AppButton {
    implicitHeight: 38
    horizontalPadding: 16
    radius: InformationTheme.citrineRadius
    textStyle: InformationTheme.citrineLabel
    tint: enabled ? InformationTheme.citrineInk : InformationTheme.ink3
    ground: !enabled ? InformationTheme.track : down ? InformationTheme.citrinePressed : InformationTheme.citrine
    outline: enabled && hovered && !down ? InformationTheme.citrineDark : "transparent"
}
