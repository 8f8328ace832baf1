// SPDX-License-Identifier: Apache-2.0

import QtQuick
import CorvaniteInformation.Controls
import CorvaniteInformation.State

/// What the hand-in sheet holds.
Column {
    id: form

    required property InformationModel workbench
    required property string title

    readonly property bool refused: workbench.intakeErrorMessage !== ""

    signal done

    function begin() {
        input.clear();
        workbench.dismissIntakeError();
    }

    function takeFocus(reason: int) {
        input.forceActiveFocus(reason);
    }

    /// A composition that is not finished is no input.
    function submit() {
        InputMethod.reset();
        workbench.dismissIntakeError();
        if (workbench.addSource(input.text))
            done();
    }

    /// Ctrl+Enter hands in, wherever the focus is; held, it does so once.
    function submitByKey(event: KeyEvent) {
        event.accepted = (event.modifiers & Qt.ControlModifier) !== 0;
        if (event.accepted && !event.isAutoRepeat)
            submit();
    }

    Keys.onReturnPressed: event => submitByKey(event)
    Keys.onEnterPressed: event => submitByKey(event)

    spacing: 16

    Accessible.role: Accessible.Dialog
    Accessible.name: form.title
    Accessible.description: lead.text

    Column {
        width: parent.width
        bottomPadding: 4
        spacing: 4

        EyebrowText {
            text: "添加信息"
        }

        Column {
            width: parent.width
            spacing: 8

            HeadingText {
                width: parent.width
                text: form.title
                textStyle: TypeScale.title1
            }

            SheetText {
                id: lead

                width: parent.width
                text: "粘贴一个网页，或直接说想持续更新什么。系统自动选择合适方式，不让你配置工作流。"
                color: InformationTheme.ink2
            }
        }
    }

    Column {
        width: parent.width
        spacing: 8

        AppTextField {
            id: input

            width: parent.width
            prompt: "链接或一句话"
            faulty: form.refused
            Accessible.name: prompt
            Accessible.description: form.workbench.intakeErrorMessage

            onTextChanged: form.workbench.dismissIntakeError()
            Keys.onReturnPressed: event => input.enter(event)
            Keys.onEnterPressed: event => input.enter(event)

            // Enter that ends a composition goes to the field and hands nothing in.
            function enter(event: KeyEvent) {
                event.accepted = !inputMethodComposing;
                if (event.accepted && !event.isAutoRepeat)
                    form.submit();
            }
        }

        SheetText {
            width: parent.width
            height: Math.max(40, implicitHeight)
            text: form.refused ? form.workbench.intakeErrorMessage : "已核验的公开来源会直接接入；其他输入先安全保存在本机，未接入时不会假装已经抓取。"
            textStyle: TypeScale.small
            color: form.refused ? InformationTheme.accent : InformationTheme.ink2
            Accessible.ignored: form.refused
        }
    }

    Row {
        anchors.right: parent.right
        spacing: 8

        QuietButton {
            anchors.verticalCenter: parent.verticalCenter
            activeFocusOnPress: false
            text: "取消"
            onClicked: form.done()
        }

        CitrineButton {
            activeFocusOnPress: false
            text: form.title
            onClicked: form.submit()
        }
    }
}
