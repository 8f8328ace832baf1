// SPDX-License-Identifier: Apache-2.0

#include "InformationWorkspace.h"

#include "InformationProjection.h"

#include <QSet>

namespace {

template <typename Value>
void keepFirstOccurrences(QList<Value>& list)
{
    QSet<Value> met;
    met.reserve(list.size());
    list.removeIf([&met](const Value& value) {
        const auto countBefore = met.size();
        met.insert(value);
        return met.size() == countBefore;
    });
}

template <typename Value>
bool holdsEachOnce(const QList<Value>& list)
{
    return QSet<Value>(list.begin(), list.end()).size() == list.size();
}

template <typename Value>
void appendOnce(QList<Value>& list, const Value& value)
{
    if (!list.contains(value)) {
        list.append(value);
    }
}

void keepLatest(QList<QString>& seenTargets)
{
    if (seenTargets.size() > InformationWorkspace::maximumSeenTargets) {
        seenTargets.remove(0, seenTargets.size() - InformationWorkspace::maximumSeenTargets);
    }
}

} // namespace

void InformationWorkspace::normalize()
{
    keepFirstOccurrences(following);
    keepFirstOccurrences(hidden);
    keepFirstOccurrences(reducedLanes);
    keepFirstOccurrences(seenTargets);
    keepLatest(seenTargets);
}

bool InformationWorkspace::isNormalized() const
{
    return holdsEachOnce(following) && holdsEachOnce(hidden) && holdsEachOnce(reducedLanes) &&
           holdsEachOnce(seenTargets) && seenTargets.size() <= maximumSeenTargets;
}

bool InformationWorkspace::keeps(const InformationSignal& signal) const
{
    return saved.contains(signal.id) && following.contains(signal.followTarget.id);
}

void InformationWorkspace::setKept(bool keep, const InformationSignal& signal,
                                   std::chrono::sys_seconds at)
{
    const QString& target = signal.followTarget.id;
    if (!keep) {
        saved.erase(signal.id);
        following.removeAll(target);
        return;
    }
    saved.try_emplace(signal.id,
                      SavedInformation{.savedAt = at, .saveReason = signal.why, .note = {}});
    appendOnce(following, target);
}

void InformationWorkspace::reduceSimilar(const InformationSignal& signal)
{
    appendOnce(hidden, InformationProjection::versionKey(signal));
    appendOnce(reducedLanes, signal.lane);
}

bool InformationWorkspace::hasSeen(const InformationSignal& signal) const
{
    return seenTargets.contains(signal.followTarget.id);
}

void InformationWorkspace::markSeen(const InformationSignal& signal)
{
    if (!hasSeen(signal)) {
        seenTargets.append(signal.followTarget.id);
        keepLatest(seenTargets);
    }
}
