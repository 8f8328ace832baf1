// SPDX-License-Identifier: Apache-2.0

#include "ExportedThread.h"

#include "InformationProjection.h"
#include "InformationSignalIndex.h"

#include <QHash>

#include <algorithm>
#include <iterator>

namespace {

using Detail = ExportedThread::Detail;
using Keeping = ExportedThread::Keeping;

QList<Keeping> lastKeptFirst(const InformationWorkspace::SavedMap& saved)
{
    QList<Keeping> keepings;
    keepings.reserve(static_cast<qsizetype>(saved.size()));
    for (const auto& [id, entry] : saved) {
        keepings.append({id, entry});
    }
    // The map gives the ids in ascending order, and a stable sort leaves them so where times tie.
    std::ranges::stable_sort(keepings, std::ranges::greater(),
                             [](const Keeping& keeping) { return keeping.saved.savedAt; });
    return keepings;
}

QHash<QString, InformationSignal> newestByTarget(const QList<InformationSignal>& signals)
{
    QHash<QString, InformationSignal> newest;
    for (const InformationSignal& signal : signals) {
        const auto known = newest.constFind(signal.followTarget.id);
        if (known == newest.constEnd() || codePointLess(known->observedAt, signal.observedAt)) {
            newest.insert(signal.followTarget.id, signal);
        }
    }
    return newest;
}

QString dayOf(std::chrono::sys_seconds time)
{
    return InformationProjection::beijingDay(
        std::chrono::milliseconds(time.time_since_epoch()).count());
}

void append(QList<Detail>& details, const QString& label, const QString& text)
{
    if (!text.isEmpty()) {
        details.append({label, text});
    }
}

void appendKeepings(QList<Detail>& details, const QList<Keeping>& keepings)
{
    for (const auto& [id, saved] : keepings) {
        append(details, QStringLiteral("收下于"), dayOf(saved.savedAt));
        append(details, QStringLiteral("为什么留下"), saved.saveReason);
        append(details, QStringLiteral("自己的备注"), saved.note);
    }
}

void appendContent(QList<Detail>& details, const InformationSignal& signal)
{
    append(details, QStringLiteral("来源"), signal.source);
    append(details, QStringLiteral("为什么值得看"), signal.why);
    append(details, QStringLiteral("最大限制"), signal.caveat);
    append(details, QStringLiteral("这次变了什么"), signal.updateSummary.value_or(QString()));
    append(details, QStringLiteral("页内要点"), signal.digest.value_or(QString()));
    append(details, QStringLiteral("现在"), signal.summary);
    for (const InformationTimelineEvent& event : signal.timeline) {
        append(details, event.dateLabel,
               event.source.isEmpty() ? event.summary
                                      : event.summary + u'（' + event.source + u'）');
    }
    for (const InformationRelatedSource& source : signal.relatedSources) {
        append(details, QStringLiteral("更多原文"), (source.label + u' ' + source.url).trimmed());
    }
}

} // namespace

QList<ExportedThread> ExportedThread::listOf(const InformationWorkspace& workspace,
                                             const QList<InformationSignal>& signals)
{
    const auto index = indexById(signals);
    const auto newest = newestByTarget(signals);
    QList<ExportedThread> threads;
    QHash<QString, qsizetype> places;
    const auto threadOf = [&](const QString& target) -> ExportedThread& {
        const auto place = places.constFind(target);
        if (place != places.constEnd()) {
            return threads[*place];
        }
        places.insert(target, threads.size());
        const auto signal = newest.constFind(target);
        threads.append(
            {.signal = signal == newest.constEnd() ? std::nullopt : std::optional(*signal),
             .keepings = {},
             .targetId = target,
             .isFollowed = workspace.following.contains(target)});
        return threads.last();
    };

    for (const Keeping& keeping : lastKeptFirst(workspace.saved)) {
        const auto signal = index.constFind(keeping.signalId);
        if (signal == index.constEnd()) {
            threads.append({.signal = std::nullopt, .keepings = {keeping}, .targetId = {}});
        } else {
            threadOf(signal->followTarget.id).keepings.append(keeping);
        }
    }
    for (const QString& target : workspace.following) {
        threadOf(target);
    }
    return threads;
}

QString ExportedThread::title() const
{
    if (signal) {
        return signal->title;
    }
    return keepings.isEmpty() ? targetId : keepings.first().signalId;
}

QList<Detail> ExportedThread::details() const
{
    QList<Detail> details;
    appendKeepings(details, keepings);
    if (signal) {
        appendContent(details, *signal);
    }
    return details;
}
