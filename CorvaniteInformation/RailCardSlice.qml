import QtQuick
import CorvaniteInformation

/// A slice of the card that holds the list of everything below the column: each place of the list
/// is a delegate of its own, and their slices join to one card.
FocusScope {
    id: slice

    required property bool first
    required property bool last
    readonly property alias contentWidth: body.width
    default property alias content: body.data

    readonly property int topPadding: first ? 20 : 0
    readonly property int bottomPadding: last ? 20 : 0
    /// How far the card goes on beyond the slice, where it does.
    readonly property int overlap: InformationTheme.cardRadius

    implicitHeight: topPadding + body.height + bottomPadding
    clip: true

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: slice.first ? 0 : -slice.overlap
        anchors.bottomMargin: slice.last ? 0 : -slice.overlap
        radius: InformationTheme.cardRadius
        color: InformationTheme.card
        border.color: InformationTheme.hair
    }

    Item {
        id: body

        x: 21
        y: slice.topPadding
        width: parent.width - 2 * x
        height: childrenRect.height
    }
}
