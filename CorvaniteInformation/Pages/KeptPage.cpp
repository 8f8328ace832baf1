// SPDX-License-Identifier: Apache-2.0

#include "KeptPage.h"

#include <utility>

namespace {

QList<KeptRow> keptRows(const InformationModel& workbench)
{
    QList<KeptRow> rows;
    for (const auto& signal : workbench.keptSignals()) {
        rows.append(KeptRow::from(signal));
    }
    for (const auto& source : workbench.keptCustomSources()) {
        rows.append(KeptRow::from(source));
    }
    return rows;
}

} // namespace

void KeptPage::remove(const KeptRow& row)
{
    if (!workbench()) {
        return;
    }
    if (row.custom) {
        workbench()->removeSource(QUuid::fromString(row.itemId));
    } else {
        workbench()->removeKept(row.itemId);
    }
}

void KeptPage::follow(const InformationModel& workbench)
{
    connect(&workbench, &InformationModel::contentChanged, this, &KeptPage::refresh);
    connect(&workbench, &InformationModel::workspaceChanged, this, &KeptPage::refresh);
    connect(&workbench, &InformationModel::searchChanged, this, &KeptPage::refresh);
}

void KeptPage::show(const InformationModel& workbench)
{
    const auto rows = keptRows(workbench);
    const bool searching = !workbench.search().isEmpty();

    Texts texts;
    texts.eyebrow = u"已收下 · %1 项"_qs.arg(workbench.keptItemCount());
    texts.empty = rows.isEmpty();
    texts.emptyTitle = searching ? u"没有匹配的内容"_qs : u"还没有收下任何内容"_qs;
    texts.emptyMessage = searching
                             ? u"换一个标题、来源或留下的原因试试。"_qs
                             : u"默认精选仍会继续工作；遇到以后还会用到的信息，直接点“收下”。"_qs;

    m_rows.setRows(rows);
    m_texts = std::move(texts);
}
