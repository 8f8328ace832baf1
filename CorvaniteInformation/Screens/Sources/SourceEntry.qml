// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One source of the registry.
Item {
    id: entry

    required property sourceEntryRow row
    /// A rule separates the row from the one above.
    required property bool ruled

    implicitHeight: texts.height + 24

    Hairline {
        x: texts.x
        width: parent.width - x - 24
        visible: entry.ruled
    }

    AppText {
        x: 24
        y: 14
        width: 28
        text: entry.row.number
        textStyle: TypeScale.meta
        color: InformationTheme.ink3
        wrapMode: Text.NoWrap
    }

    Column {
        id: texts

        x: 64
        y: 12
        width: home.x - 24 - x

        AppText {
            width: parent.width
            text: entry.row.name
            textStyle: TypeScale.bodyBold
        }

        AppText {
            width: parent.width
            text: entry.row.description
            textStyle: TypeScale.small
            color: InformationTheme.ink2
        }
    }

    LinkText {
        id: home

        x: parent.width - 24 - width
        y: 8
        visible: entry.row.address !== ""
        text: "打开信源主页"
        Accessible.description: entry.row.name
        onClicked: LinkOpener.open(entry.row.address)
    }
}
