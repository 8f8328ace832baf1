// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One signal of today's lists with the reader's answers to it. A press anywhere else opens its
/// thread.
AppButton {
    id: card

    required property signalCardRow row
    /// A screen reader counts it.
    required property bool counted

    signal changeToggled
    signal keepToggled
    signal similarReduced

    implicitHeight: face.implicitHeight + 48
    radius: InformationTheme.cardRadius
    ringInside: true
    ground: down ? InformationTheme.well : InformationTheme.card
    outline: hovered ? InformationTheme.control : InformationTheme.hair

    Accessible.role: card.counted ? Accessible.ListItem : Accessible.Section
    Accessible.name: card.row.title
    Accessible.description: card.row.description

    HandCursor {}

    SignalCardFace {
        id: face

        // Not by anchors, which hold only once the texts are laid out.
        x: 24
        y: 24
        width: parent.width - 48
        row: card.row
        onChangeToggled: card.changeToggled()
        onKeepToggled: card.keepToggled()
        onSimilarReduced: card.similarReduced()
    }
}
