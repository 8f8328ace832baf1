import QtQuick
import QtQuick.Templates as T
import CorvaniteInformation.Controls

/// The tooltip under a control.
T.ToolTip {
    id: tip

    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height + 8 : 0
    margins: 8
    horizontalPadding: 12
    verticalPadding: 6
    delay: 600
    closePolicy: T.Popup.NoAutoClose

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    contentItem: AppText {
        text: tip.text
        textStyle: InformationTheme.small
        wrapMode: Text.NoWrap
    }

    background: RaisedGround {
        radius: InformationTheme.rowRadius
    }
}
