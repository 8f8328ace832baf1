import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages

/// One rule of citation.
Column {
    id: bullet

    required property citationRule rule

    AppText {
        width: parent.width
        text: bullet.rule.headline
        textStyle: InformationTheme.bodyBold
    }

    AppText {
        width: parent.width
        text: bullet.rule.text
        color: InformationTheme.ink2
    }
}
