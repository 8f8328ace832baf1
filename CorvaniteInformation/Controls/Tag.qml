// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// A short word on a ground of its own.
Rectangle {
    id: tag

    enum Kind {
        Neutral,
        Change,
        Blocked,
        Unstable,
        Running
    }

    required property string text
    property int kind: Tag.Neutral
    readonly property bool citrine: kind === Tag.Unstable || kind === Tag.Running

    readonly property color ink: {
        switch (kind) {
        case Tag.Change:
            return InformationTheme.accent;
        case Tag.Blocked:
            return InformationTheme.agateStrong;
        case Tag.Unstable:
        case Tag.Running:
            return InformationTheme.citrineDark;
        default:
            return InformationTheme.ink2;
        }
    }

    implicitWidth: Math.ceil(label.implicitWidth) + 18
    implicitHeight: 20
    radius: InformationTheme.tagRadius
    color: {
        switch (kind) {
        case Tag.Change:
            return InformationTheme.accentWash;
        case Tag.Blocked:
            return InformationTheme.blockedGround;
        case Tag.Unstable:
            return InformationTheme.unstableGround;
        case Tag.Running:
            return InformationTheme.runningGround;
        default:
            return InformationTheme.well;
        }
    }
    border.color: citrine ? InformationTheme.citrineTagBorder : kind === Tag.Neutral ? InformationTheme.hair : "transparent"

    AppText {
        id: label

        x: 9
        anchors.verticalCenter: parent.verticalCenter
        text: tag.text
        textStyle: tag.kind === Tag.Neutral ? TypeScale.caption : TypeScale.captionBold
        color: tag.ink
        wrapMode: Text.NoWrap
    }
}
