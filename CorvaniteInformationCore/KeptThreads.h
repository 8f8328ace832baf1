// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CustomInformationSource.h"
#include "InformationSignal.h"
#include "InformationWorkspace.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <chrono>
#include <optional>

/// The live signals by the thread that they belong to, and what the reader keeps of the threads. A
/// thread is all signals of one follow target. Made once for the signals, which may be many.
class KeptThreads
{
public:
    using SavedEntry = InformationWorkspace::SavedMap::value_type;

    explicit KeptThreads(const QList<InformationSignal>& signals);

    /// The signal id and entry that stand for the signal's thread: of several the last kept, and of
    /// those kept at one time the first by code point.
    std::optional<SavedEntry> savedEntry(const InformationWorkspace& workspace,
                                         const InformationSignal& signal) const;

    /// The follow targets of the kept threads: followed, and with a saved entry. To be asked once
    /// for many signals.
    QSet<QString> keptTargets(const InformationWorkspace& workspace) const;

    /// Follows the signal's thread and, where it has no saved entry, saves the signal.
    void keep(InformationWorkspace& workspace, const InformationSignal& signal,
              std::chrono::sys_seconds at) const;

    /// Removes every saved entry of the signal's thread and its follow.
    void remove(InformationWorkspace& workspace, const InformationSignal& signal) const;

    /// Keeps the signal's thread and gives the note to the entry that stands for it.
    void writeNote(InformationWorkspace& workspace, const InformationSignal& signal,
                   const QString& note, std::chrono::sys_seconds at) const;

    /// Of each signal what a search in the kept list looks at: its texts, and the reason and the
    /// note that the reader kept it with. To be asked once for many searches.
    QList<QString> searchedTexts(const QList<InformationSignal>& signals,
                                 const InformationWorkspace& workspace) const;

    /// The signals that a search finds in their `searchedTexts`. The search is trimmed; letter case
    /// and an empty search do not count.
    static QList<InformationSignal> found(const QString& search,
                                          const QList<InformationSignal>& signals,
                                          const QList<QString>& searchedTexts);

    /// The same in what the reader handed in.
    static QList<CustomInformationSource> found(const QString& search,
                                                QList<CustomInformationSource> sources);

private:
    InformationWorkspace::SavedMap::const_iterator entryOf(const InformationWorkspace& workspace,
                                                           const QString& target) const;

    QHash<QString, QList<QString>> m_idsByTarget;
};
