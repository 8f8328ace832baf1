// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.State

/// The sheet in which the reader hands in a link or a sentence.
Sheet {
    id: view

    required property InformationModel workbench
    /// It was asked for by a key.
    required property bool byKeyboard

    readonly property AddSourceForm form: contentItem as AddSourceForm

    width: 520
    horizontalPadding: 32
    verticalPadding: 28
    title: "交给 Corvanite"
    visible: true

    onAboutToShow: form.begin()
    onOpened: form.takeFocus(byKeyboard ? Qt.ShortcutFocusReason : Qt.PopupFocusReason)

    contentItem: AddSourceForm {
        workbench: view.workbench
        title: view.title
        onDone: view.close()
    }
}
