// SPDX-License-Identifier: Apache-2.0

#include "InformationProjection.h"

#include "InformationSignalIndex.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr qint64 millisecondsPerDay = 86'400'000;

// What is picked is copied once, at the end: a signal is large.
using Picks = std::vector<const InformationSignal*>;

QList<InformationSignal> copies(const Picks& picks)
{
    QList<InformationSignal> signals;
    signals.reserve(static_cast<qsizetype>(picks.size()));
    for (const InformationSignal* signal : picks) {
        signals.append(*signal);
    }
    return signals;
}

// The signals by their follow targets; a thread is a number from 0 on.
struct Threads
{
    QHash<QString, std::optional<size_t>> byTarget;
    // By the signal's position.
    std::vector<size_t> ofSignals;
    // By thread; of equally new signals the first.
    Picks newest;
};

Threads threadsOf(const QList<InformationSignal>& signals)
{
    Threads threads;
    threads.byTarget.reserve(signals.size());
    threads.ofSignals.reserve(static_cast<size_t>(signals.size()));
    for (const InformationSignal& signal : signals) {
        auto& thread = threads.byTarget[signal.followTarget.id];
        if (!thread) {
            thread = threads.newest.size();
            threads.newest.push_back(&signal);
        } else if (codePointLess(threads.newest[*thread]->observedAt, signal.observedAt)) {
            threads.newest[*thread] = &signal;
        }
        threads.ofSignals.push_back(*thread);
    }
    return threads;
}

// In the order of following.
std::vector<size_t> followedThreads(const QList<QString>& following, const Threads& threads)
{
    std::vector<size_t> followed;
    for (const QString& target : following) {
        if (const auto thread = threads.byTarget.value(target)) {
            followed.push_back(*thread);
        }
    }
    return followed;
}

void append(Picks& picks, const Picks& further)
{
    picks.insert(picks.end(), further.begin(), further.end());
}

Picks todaysPicks(const QList<InformationSignal>& signals, const InformationWorkspace& workspace)
{
    const QSet<QString> hidden(workspace.hidden.begin(), workspace.hidden.end());
    const auto isHidden = [&hidden](const InformationSignal& signal) {
        return !hidden.isEmpty() && (hidden.contains(signal.id) ||
                                     hidden.contains(InformationProjection::versionKey(signal)));
    };
    Picks shown;
    Picks reduced;
    for (const InformationSignal& signal : signals) {
        if (!isHidden(signal)) {
            (workspace.reducedLanes.contains(signal.lane) ? reduced : shown).push_back(&signal);
        }
    }
    append(shown, reduced);
    return shown;
}

// Fresh news, then updates, then older news, which starts with another entry each day.
Picks focusCandidates(const Picks& pool, qint64 asOf)
{
    const qint64 cutoff = asOf - millisecondsPerDay;
    Picks recentNews;
    Picks updates;
    Picks olderNews;
    for (const InformationSignal* signal : pool) {
        if (signal->kind == InformationSignalKind::Update) {
            updates.push_back(signal);
        } else if (InformationProjection::isoMilliseconds(signal->observedAt).value_or(0) >=
                   cutoff) {
            recentNews.push_back(signal);
        } else {
            olderNews.push_back(signal);
        }
    }
    if (!olderNews.empty()) {
        const auto count = static_cast<qint64>(olderNews.size());
        const qint64 turn = (asOf / millisecondsPerDay % count + count) % count;
        std::ranges::rotate(olderNews, olderNews.begin() + turn);
    }
    append(recentNews, updates);
    append(recentNews, olderNews);
    return recentNews;
}

QSet<QString> featuredOn(const QString& day, const QList<SelectionDay>& history)
{
    const auto featuredDay = std::ranges::find(history, day, &SelectionDay::date);
    if (featuredDay == history.end()) {
        return {};
    }
    return {featuredDay->focusSignalIds.begin(), featuredDay->focusSignalIds.end()};
}

// What was featured goes to the end, of a repeated id only the first.
Picks featuredLast(const Picks& candidates, QSet<QString> featured)
{
    Picks ordered;
    for (const InformationSignal* signal : candidates) {
        if (!featured.contains(signal->id)) {
            ordered.push_back(signal);
        }
    }
    for (const InformationSignal* signal : candidates) {
        if (featured.remove(signal->id)) {
            ordered.push_back(signal);
        }
    }
    return ordered;
}

Picks focusPicks(const Picks& pool, qsizetype limit, const QString& asOf,
                 const QList<SelectionDay>& history)
{
    Picks ordered = pool;
    if (const auto milliseconds = InformationProjection::isoMilliseconds(asOf)) {
        ordered =
            featuredLast(focusCandidates(pool, *milliseconds),
                         featuredOn(InformationProjection::beijingDay(*milliseconds), history));
    } else {
        std::ranges::stable_partition(ordered, [](const InformationSignal* signal) {
            return signal->kind == InformationSignalKind::Update;
        });
    }
    const auto most = static_cast<std::size_t>(std::max(limit, qsizetype{0}));
    ordered.resize(std::min(ordered.size(), most));
    return ordered;
}

struct SavedSignal
{
    std::chrono::sys_seconds savedAt;
    const InformationSignal* signal;
};

// The last kept first, without those that are no longer published. The map gives the ids in
// ascending order, and a stable sort leaves them so where times tie.
std::vector<SavedSignal> lastSavedFirst(const InformationWorkspace::SavedMap& entries,
                                        const QHash<QString, const InformationSignal*>& known)
{
    std::vector<SavedSignal> saved;
    for (const auto& [id, entry] : entries) {
        if (const InformationSignal* signal = known.value(id)) {
            saved.push_back({entry.savedAt, signal});
        }
    }
    std::ranges::stable_sort(saved, std::ranges::greater(), &SavedSignal::savedAt);
    return saved;
}

} // namespace

QList<InformationSignal> InformationProjection::today(const QList<InformationSignal>& signals,
                                                      const InformationWorkspace& workspace)
{
    return copies(todaysPicks(signals, workspace));
}

QList<InformationSignal>
InformationProjection::focusedToday(const QList<InformationSignal>& signals,
                                    const InformationWorkspace& workspace, qsizetype limit,
                                    const QString& asOf, const QList<SelectionDay>& history)
{
    return copies(focusPicks(todaysPicks(signals, workspace), limit, asOf, history));
}

QList<InformationSignal>
InformationProjection::remainingToday(const QList<InformationSignal>& signals,
                                      const InformationWorkspace& workspace, qsizetype limit,
                                      const QString& asOf, const QList<SelectionDay>& history)
{
    Picks remaining = todaysPicks(signals, workspace);
    QSet<QString> focused;
    for (const InformationSignal* signal : focusPicks(remaining, limit, asOf, history)) {
        focused.insert(signal->id);
    }
    std::erase_if(remaining, [&focused](const InformationSignal* signal) {
        return focused.contains(signal->id);
    });
    return copies(remaining);
}

QList<InformationSignal> InformationProjection::kept(const QList<InformationSignal>& signals,
                                                     const InformationWorkspace& workspace)
{
    const Threads threads = threadsOf(signals);
    const auto followed = followedThreads(workspace.following, threads);
    std::vector<bool> isFollowed(threads.newest.size());
    for (const size_t thread : followed) {
        isFollowed[thread] = true;
    }

    Picks shown;
    std::vector<bool> isShown(threads.newest.size());
    const auto show = [&](size_t thread, const InformationSignal* signal) {
        if (!isShown[thread]) {
            isShown[thread] = true;
            shown.push_back(signal);
        }
    };
    for (const auto& [savedAt, signal] : lastSavedFirst(workspace.saved, pointersById(signals))) {
        const size_t thread = threads.ofSignals[static_cast<size_t>(signal - signals.constData())];
        show(thread, isFollowed[thread] ? threads.newest[thread] : signal);
    }
    for (const size_t thread : followed) {
        show(thread, threads.newest[thread]);
    }
    return copies(shown);
}

QList<InformationSignal> InformationProjection::following(const QList<InformationSignal>& signals,
                                                          const InformationWorkspace& workspace)
{
    const Threads threads = threadsOf(signals);
    Picks newest;
    for (const size_t thread : followedThreads(workspace.following, threads)) {
        newest.push_back(threads.newest[thread]);
    }
    return copies(newest);
}

QString InformationProjection::versionKey(const InformationSignal& signal)
{
    return signal.id + u'@' + signal.observedAt;
}
