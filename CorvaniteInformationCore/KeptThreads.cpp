// SPDX-License-Identifier: Apache-2.0

#include "KeptThreads.h"

#include "CodePointOrder.h"
#include "WellFormedText.h"

#include <QStringList>

#include <algorithm>

namespace {

QString query(const QString& search)
{
    return search.trimmed().toLower();
}

bool standsBefore(const KeptThreads::SavedEntry& left, const KeptThreads::SavedEntry& right)
{
    return left.second.savedAt == right.second.savedAt ? codePointLess(left.first, right.first)
                                                       : left.second.savedAt > right.second.savedAt;
}

QString searchedText(const InformationSignal& signal,
                     const std::optional<KeptThreads::SavedEntry>& entry)
{
    const QStringList texts{signal.title,
                            signal.source,
                            signal.followTarget.label,
                            signal.followTarget.scope,
                            entry ? entry->second.saveReason : signal.why,
                            entry ? entry->second.note : QString()};
    return texts.join(u' ').toLower();
}

} // namespace

KeptThreads::KeptThreads(const QList<InformationSignal>& signals)
{
    for (const InformationSignal& signal : signals) {
        m_idsByTarget[signal.followTarget.id].append(signal.id);
    }
}

std::optional<KeptThreads::SavedEntry>
KeptThreads::savedEntry(const InformationWorkspace& workspace,
                        const InformationSignal& signal) const
{
    const auto entry = entryOf(workspace, signal.followTarget.id);
    return entry == workspace.saved.end() ? std::nullopt : std::optional(*entry);
}

QSet<QString> KeptThreads::keptTargets(const InformationWorkspace& workspace) const
{
    QSet<QString> kept;
    for (const QString& target : workspace.following) {
        if (entryOf(workspace, target) != workspace.saved.end()) {
            kept.insert(target);
        }
    }
    return kept;
}

void KeptThreads::keep(InformationWorkspace& workspace, const InformationSignal& signal,
                       std::chrono::sys_seconds at) const
{
    const QString& target = signal.followTarget.id;
    if (entryOf(workspace, target) == workspace.saved.end()) {
        workspace.setKept(true, signal, at);
    } else if (!workspace.following.contains(target)) {
        workspace.following.append(target);
    }
}

void KeptThreads::remove(InformationWorkspace& workspace, const InformationSignal& signal) const
{
    const QString& target = signal.followTarget.id;
    for (const QString& id : m_idsByTarget.value(target)) {
        workspace.saved.erase(id);
    }
    workspace.following.removeAll(target);
}

void KeptThreads::writeNote(InformationWorkspace& workspace, const InformationSignal& signal,
                            const QString& note, std::chrono::sys_seconds at) const
{
    keep(workspace, signal, at);
    const auto entry = savedEntry(workspace, signal);
    workspace.saved.at(entry ? entry->first : signal.id).note = wellFormedText(note);
}

QList<QString> KeptThreads::searchedTexts(const QList<InformationSignal>& signals,
                                          const InformationWorkspace& workspace) const
{
    QList<QString> texts;
    texts.reserve(signals.size());
    for (const InformationSignal& signal : signals) {
        texts.append(searchedText(signal, savedEntry(workspace, signal)));
    }
    return texts;
}

QList<InformationSignal> KeptThreads::found(const QString& search,
                                            const QList<InformationSignal>& signals,
                                            const QList<QString>& searchedTexts)
{
    const QString text = query(search);
    QList<InformationSignal> found;
    for (qsizetype at = 0; at < signals.size(); ++at) {
        if (searchedTexts.at(at).contains(text)) {
            found.append(signals.at(at));
        }
    }
    return found;
}

QList<CustomInformationSource> KeptThreads::found(const QString& search,
                                                  QList<CustomInformationSource> sources)
{
    const QString text = query(search);
    sources.removeIf([&text](const CustomInformationSource& source) {
        return !source.input.toLower().contains(text);
    });
    return sources;
}

InformationWorkspace::SavedMap::const_iterator
KeptThreads::entryOf(const InformationWorkspace& workspace, const QString& target) const
{
    auto standing = workspace.saved.end();
    for (const QString& id : m_idsByTarget.value(target)) {
        const auto entry = workspace.saved.find(id);
        if (entry != workspace.saved.end() &&
            (standing == workspace.saved.end() || standsBefore(*entry, *standing))) {
            standing = entry;
        }
    }
    return standing;
}
