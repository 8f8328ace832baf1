// SPDX-License-Identifier: Apache-2.0

#include "FramePage.h"

#include "OpenableAddress.h"

#include <utility>

void FramePage::follow(const InformationModel& workbench)
{
    connect(&workbench, &InformationModel::packSyncNoteChanged, this, &FramePage::refresh);
    connect(&workbench, &InformationModel::availableUpdateChanged, this, &FramePage::refresh);
}

void FramePage::show(const InformationModel& workbench)
{
    Texts texts;
    texts.syncHelp = u"从 %1 拉取最新精选内容"_qs.arg(workbench.siteHost());
    if (const auto note = workbench.packSyncNote()) {
        texts.syncNote = *note;
        texts.syncHelp += u'\n' + *note;
        texts.syncFailed = workbench.packSyncFailed();
    }
    if (const auto& update = workbench.availableUpdate()) {
        texts.updateText = u"新版本 %1 已发布"_qs.arg(update->version);
        texts.updateHelp = u"获取 Corvanite Information 新版本 %1"_qs.arg(update->version);
        texts.updateAddress =
            OpenableAddress::from(update->downloadURL.toString(QUrl::FullyEncoded));
    }
    if (m_texts != texts) {
        m_texts = std::move(texts);
        Q_EMIT textsChanged();
    }
}
