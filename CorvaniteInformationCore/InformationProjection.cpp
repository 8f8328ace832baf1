#include "InformationProjection.h"

#include "InformationSignalIndex.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr qint64 millisecondsPerDay = 86'400'000;

using NewestByTarget = QHash<QString, const InformationSignal*>;

// For each follow target its newest signal; of equally new ones the first.
NewestByTarget newestByTarget(const QList<InformationSignal>& signals)
{
    NewestByTarget newest;
    newest.reserve(signals.size());
    for (const InformationSignal& signal : signals) {
        const InformationSignal*& pick = newest[signal.followTarget.id];
        if (!pick || codePointLess(pick->observedAt, signal.observedAt)) {
            pick = &signal;
        }
    }
    return newest;
}

QSet<QString> idsOf(const QList<InformationSignal>& signals)
{
    QSet<QString> ids;
    ids.reserve(signals.size());
    for (const InformationSignal& signal : signals) {
        ids.insert(signal.id);
    }
    return ids;
}

// Fresh news, then updates, then older news, which starts with another entry each day.
QList<InformationSignal> focusCandidates(const QList<InformationSignal>& pool, qint64 asOf)
{
    const qint64 cutoff = asOf - millisecondsPerDay;
    QList<InformationSignal> recentNews;
    QList<InformationSignal> updates;
    QList<InformationSignal> olderNews;
    for (const InformationSignal& signal : pool) {
        if (signal.kind == InformationSignalKind::Update) {
            updates.append(signal);
        } else if (InformationProjection::isoMilliseconds(signal.observedAt).value_or(0) >=
                   cutoff) {
            recentNews.append(signal);
        } else {
            olderNews.append(signal);
        }
    }
    if (!olderNews.isEmpty()) {
        const qsizetype count = olderNews.size();
        const qint64 turn = (asOf / millisecondsPerDay % count + count) % count;
        std::ranges::rotate(olderNews, olderNews.begin() + turn);
    }
    return recentNews + updates + olderNews;
}

} // namespace

QList<InformationSignal> InformationProjection::today(const QList<InformationSignal>& signals,
                                                      const InformationWorkspace& workspace)
{
    const QSet<QString> hidden(workspace.hidden.begin(), workspace.hidden.end());
    QList<InformationSignal> shown;
    QList<InformationSignal> reduced;
    for (const InformationSignal& signal : signals) {
        if (hidden.contains(signal.id) || hidden.contains(versionKey(signal))) {
            continue;
        }
        (workspace.reducedLanes.contains(signal.lane) ? reduced : shown).append(signal);
    }
    return shown + reduced;
}

QList<InformationSignal>
InformationProjection::focusedToday(const QList<InformationSignal>& signals,
                                    const InformationWorkspace& workspace, qsizetype limit,
                                    const QString& asOf, const QList<SelectionDay>& history)
{
    if (limit < 1) {
        return {};
    }
    const QList<InformationSignal> pool = today(signals, workspace);
    const std::optional<qint64> asOfMilliseconds = isoMilliseconds(asOf);
    if (!asOfMilliseconds) {
        QList<InformationSignal> updatesFirst = pool;
        std::ranges::stable_partition(updatesFirst, [](const InformationSignal& signal) {
            return signal.kind == InformationSignalKind::Update;
        });
        return updatesFirst.mid(0, limit);
    }

    const QList<InformationSignal> candidates = focusCandidates(pool, *asOfMilliseconds);
    const auto featuredDay =
        std::ranges::find(history, beijingDay(*asOfMilliseconds), &SelectionDay::date);
    const QList<QString> featuredIds =
        featuredDay == history.end() ? QList<QString>() : featuredDay->focusSignalIds;
    const QSet<QString> featured(featuredIds.begin(), featuredIds.end());

    QList<InformationSignal> picked;
    for (const InformationSignal& signal : candidates) {
        if (!featured.contains(signal.id)) {
            picked.append(signal);
        }
    }
    QSet<QString> pickedIds = idsOf(picked);
    for (const InformationSignal& signal : candidates) {
        if (picked.size() >= limit) {
            break;
        }
        if (!pickedIds.contains(signal.id)) {
            pickedIds.insert(signal.id);
            picked.append(signal);
        }
    }
    return picked.mid(0, limit);
}

QList<InformationSignal>
InformationProjection::remainingToday(const QList<InformationSignal>& signals,
                                      const InformationWorkspace& workspace, qsizetype limit,
                                      const QString& asOf, const QList<SelectionDay>& history)
{
    const QSet<QString> focused = idsOf(focusedToday(signals, workspace, limit, asOf, history));
    QList<InformationSignal> remaining = today(signals, workspace);
    remaining.removeIf(
        [&focused](const InformationSignal& signal) { return focused.contains(signal.id); });
    return remaining;
}

QList<InformationSignal> InformationProjection::kept(const QList<InformationSignal>& signals,
                                                     const InformationWorkspace& workspace)
{
    const QHash<QString, InformationSignal> index = indexById(signals);
    const NewestByTarget newest = newestByTarget(signals);
    const QSet<QString> followed(workspace.following.begin(), workspace.following.end());

    QList<InformationSignal> shown;
    QSet<QString> shownTargets;
    const auto show = [&shown, &shownTargets](const InformationSignal& signal) {
        if (!shownTargets.contains(signal.followTarget.id)) {
            shownTargets.insert(signal.followTarget.id);
            shown.append(signal);
        }
    };

    // The map gives the ids in ascending order, and a stable sort leaves them so where times tie.
    std::vector<InformationWorkspace::SavedMap::const_pointer> saved;
    saved.reserve(workspace.saved.size());
    for (const auto& entry : workspace.saved) {
        saved.push_back(&entry);
    }
    std::ranges::stable_sort(saved, std::ranges::greater(),
                             [](const auto* entry) { return entry->second.savedAt; });
    for (const auto* entry : saved) {
        const auto signal = index.constFind(entry->first);
        if (signal == index.constEnd()) {
            continue;
        }
        const QString& target = signal->followTarget.id;
        show(followed.contains(target) ? *newest.value(target) : *signal);
    }
    for (const QString& target : workspace.following) {
        if (const InformationSignal* signal = newest.value(target)) {
            show(*signal);
        }
    }
    return shown;
}

QList<InformationSignal> InformationProjection::following(const QList<InformationSignal>& signals,
                                                          const InformationWorkspace& workspace)
{
    const NewestByTarget newest = newestByTarget(signals);
    QList<InformationSignal> followed;
    for (const QString& target : workspace.following) {
        if (const InformationSignal* signal = newest.value(target)) {
            followed.append(*signal);
        }
    }
    return followed;
}

QString InformationProjection::versionKey(const InformationSignal& signal)
{
    return signal.id + u'@' + signal.observedAt;
}
