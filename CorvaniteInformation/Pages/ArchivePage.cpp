// SPDX-License-Identifier: Apache-2.0

#include "ArchivePage.h"

#include "ArchiveDigest.h"
#include "InformationProjection.h"

#include <algorithm>
#include <utility>

namespace {

// The day at UTC+8 of the pack that is shown; empty when its stamp does not read.
QString packDay(const InformationModel& workbench)
{
    const auto milliseconds = InformationProjection::isoMilliseconds(workbench.packAsOf());
    return milliseconds ? InformationProjection::beijingDay(*milliseconds) : QString();
}

} // namespace

void ArchivePage::follow(const InformationModel& workbench)
{
    connect(&workbench, &InformationModel::contentChanged, this, &ArchivePage::refresh);
    connect(&workbench, &InformationModel::selectedArchiveDayChanged, this,
            [this, &workbench] { showDay(workbench); });
}

void ArchivePage::show(const InformationModel& workbench)
{
    showIndex(workbench);
    showDay(workbench);
}

void ArchivePage::showIndex(const InformationModel& workbench)
{
    const auto& archiveDays = workbench.archiveDays();
    const QString today = packDay(workbench);
    QList<ArchiveDayRow> rows;
    for (const auto& day : archiveDays) {
        rows.append(ArchiveDayRow::slicesOf(
            day, ArchiveDigest::focusSignals(day, workbench.signalIndex()), today));
    }
    m_days.setRows(rows);
    m_summary = u"%1 天记录"_qs.arg(archiveDays.size());
}

void ArchivePage::showDay(const InformationModel& workbench)
{
    const auto& archiveDays = workbench.archiveDays();
    const auto day =
        std::ranges::find(archiveDays, workbench.selectedArchiveDay(), &SelectionDay::date);

    ArchiveDayTexts texts;
    int position = -1;
    QList<ArchiveFocusRow> rows;
    if (day != archiveDays.cend()) {
        texts = ArchiveDayTexts::from(*day, archiveDays);
        const auto& index = m_days.rows();
        position = static_cast<int>(std::ranges::find(index, day->date, &ArchiveDayRow::date) -
                                    index.cbegin());
        for (const auto& signal : ArchiveDigest::focusSignals(*day, workbench.signalIndex())) {
            rows.append(ArchiveFocusRow::from(signal, rows.size() + 1));
        }
    }
    m_focusRows.setRows(rows);
    if (m_dayPosition != position || m_day != texts) {
        m_dayPosition = position;
        m_day = std::move(texts);
        Q_EMIT dayChanged();
    }
}
