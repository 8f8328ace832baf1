// SPDX-License-Identifier: Apache-2.0

#include "PlainRules.h"

namespace PlainRules {

Entry threadEntry(const InformationWorkspace& workspace, const QList<InformationSignal>& live,
                  const QString& target)
{
    Entry found = workspace.saved.end();
    for (const InformationSignal& signal : live) {
        const Entry entry = workspace.saved.find(signal.id);
        if (signal.followTarget.id != target || entry == workspace.saved.end()) {
            continue;
        }
        if (found == workspace.saved.end() || found->second.savedAt < entry->second.savedAt ||
            (found->second.savedAt == entry->second.savedAt && entry->first < found->first)) {
            found = entry;
        }
    }
    return found;
}

bool isKept(const InformationWorkspace& workspace, const QList<InformationSignal>& live,
            const QString& target)
{
    return workspace.following.contains(target) &&
           threadEntry(workspace, live, target) != workspace.saved.end();
}

void follow(InformationWorkspace& workspace, const QString& target)
{
    if (!workspace.following.contains(target)) {
        workspace.following.append(target);
    }
}

void keep(InformationWorkspace& workspace, const QList<InformationSignal>& live,
          const InformationSignal& signal, std::chrono::sys_seconds now)
{
    const QString& target = signal.followTarget.id;
    if (threadEntry(workspace, live, target) == workspace.saved.end() &&
        !workspace.saved.contains(signal.id)) {
        workspace.saved[signal.id] = {now, signal.why, QString()};
    }
    follow(workspace, target);
}

void remove(InformationWorkspace& workspace, const QList<InformationSignal>& live,
            const QString& target)
{
    for (const InformationSignal& signal : live) {
        if (signal.followTarget.id == target) {
            workspace.saved.erase(signal.id);
        }
    }
    workspace.following.removeAll(target);
}

void note(InformationWorkspace& workspace, const QList<InformationSignal>& live,
          const InformationSignal& signal, const QString& text, std::chrono::sys_seconds now)
{
    const Entry entry = threadEntry(workspace, live, signal.followTarget.id);
    const QString key = entry == workspace.saved.end() ? signal.id : entry->first;
    keep(workspace, live, signal, now);
    workspace.saved.at(key).note = text;
}

void reduce(InformationWorkspace& workspace, const InformationSignal& signal)
{
    const QString version = signal.id + u'@' + signal.observedAt;
    if (!workspace.hidden.contains(version)) {
        workspace.hidden.append(version);
    }
    if (!workspace.reducedLanes.contains(signal.lane)) {
        workspace.reducedLanes.append(signal.lane);
    }
}

void see(InformationWorkspace& workspace, const QString& target)
{
    constexpr qsizetype mostSeen = 300;
    workspace.seenTargets.append(target);
    while (workspace.seenTargets.size() > mostSeen) {
        workspace.seenTargets.removeFirst();
    }
}

} // namespace PlainRules
