// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls

/// The head of a page: a short line above its title, and the sentence that leads in.
Column {
    id: intro

    property string eyebrow: ""
    required property string title
    required property string lead

    spacing: 8

    Column {
        width: parent.width
        spacing: 4

        EyebrowText {
            width: parent.width
            visible: text !== ""
            text: intro.eyebrow
        }

        HeadingText {
            width: parent.width
            text: intro.title
            textStyle: TypeScale.display
        }
    }

    AppText {
        width: parent.width
        text: intro.lead
        color: InformationTheme.ink2
    }
}
