// SPDX-License-Identifier: Apache-2.0

#include "ThreadPage.h"

#include "OpenableAddress.h"

#include <QStringList>

#include <utility>

namespace {

QString descriptionOf(const InformationSignal& signal, const QList<TimelineNodeRow>& timelineBegin)
{
    QStringList lines;
    if (signal.digest) {
        lines.append(u"页内要点："_qs + *signal.digest);
    }
    for (const auto& node : timelineBegin) {
        lines.append(node.name());
    }
    return lines.join(u'\n');
}

} // namespace

ThreadPage::Thread ThreadPage::Thread::from(const InformationSignal& signal,
                                            const QList<TimelineNodeRow>& timelineBegin)
{
    return {signal.title, descriptionOf(signal, timelineBegin), signal.digest,
            OpenableAddress::from(signal.originalURL), !signal.relatedSources.isEmpty()};
}

void ThreadPage::setSignalId(const QString& signalId)
{
    if (m_signalId == signalId) {
        return;
    }
    m_signalId = signalId;
    m_hasWritten = false;
    Q_EMIT signalIdChanged();
    refresh();
}

void ThreadPage::markSeen()
{
    if (workbench()) {
        workbench()->markSeen(m_signalId);
    }
}

void ThreadPage::writeNote(const QString& note)
{
    if (workbench()) {
        m_hasWritten = true;
        workbench()->updateNote(m_signalId, note);
    }
}

void ThreadPage::follow(const InformationModel& workbench)
{
    connect(&workbench, &InformationModel::contentChanged, this, &ThreadPage::refresh);
    connect(&workbench, &InformationModel::workspaceChanged, this, &ThreadPage::refresh);
}

void ThreadPage::show(const InformationModel& workbench)
{
    const auto signal = workbench.signalById(m_signalId);
    if (!signal) {
        return;
    }
    const auto rows = ThreadRow::columnOf(*signal);
    m_rows.setRows(rows);
    m_thread = Thread::from(*signal, rows.first().timeline);
    const auto entry = workbench.isKept(*signal) ? workbench.savedEntry(*signal) : std::nullopt;
    showSaved(entry ? std::optional(Saved{entry->second.saveReason, entry->second.note})
                    : std::nullopt);
}

void ThreadPage::showSaved(std::optional<Saved> saved)
{
    if (m_saved == saved) {
        return;
    }
    const bool noteDiffers = saved && (!m_saved || m_saved->note != saved->note);
    m_saved = std::move(saved);
    m_hasWritten = m_hasWritten && kept();
    Q_EMIT keptChanged();
    if (noteDiffers && !m_hasWritten) {
        Q_EMIT noteReplaced();
    }
}
