// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.Pages
import CorvaniteInformation.State

/// The head of the kept surface: what it is, the search, and why there is nothing to see.
Column {
    id: head

    required property KeptPage page

    function focusSearch() {
        search.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    bottomPadding: 20

    PageIntro {
        width: parent.width
        bottomPadding: 20
        eyebrow: head.page.eyebrow
        title: "已收下"
        lead: "重要信息、后续变化和你交给 Corvanite 的来源都在这里。"
    }

    SearchField {
        id: search

        width: parent.width
        prompt: "搜索标题、来源或留下的原因"
        text: head.page.workbench.search
        Accessible.name: "搜索已收下"
        onTextChanged: head.page.workbench.search = text
    }

    Column {
        width: parent.width
        topPadding: 72
        visible: head.page.empty

        EmptyCollectionView {
            width: parent.width
            title: head.page.emptyTitle
            message: head.page.emptyMessage
            action: "回到今天"
            onPerform: head.page.workbench.surface = InformationModel.Surface.Today
        }
    }
}
