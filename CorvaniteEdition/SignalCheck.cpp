// SPDX-License-Identifier: Apache-2.0

#include "SignalCheck.h"

#include "InformationProjection.h"
#include "JsonPlace.h"
#include "TextRules.h"

#include <QHash>

#include <algorithm>

using InformationProjection::fastISOSeconds;
using JsonPlace::element;
using JsonPlace::member;

namespace {

/// False also where one of them is no time.
bool isLater(const QString& time, const QString& than)
{
    const auto seconds = fastISOSeconds(time);
    const auto limit = fastISOSeconds(than);
    return seconds && limit && *seconds > *limit;
}

void requireNotAfterEdition(const QString& time, const EditionContext& context,
                            const QString& place, Findings& findings)
{
    if (context.asOf && isLater(time, *context.asOf)) {
        findings.error(
            place, u"“%1”晚于本版的时间 asOf（%2）：请改正其中一个"_qs.arg(time, *context.asOf));
    }
}

void checkTimes(const InformationSignal& signal, const QString& place,
                const EditionContext& context, Findings& findings)
{
    const QString observed = member(place, "observedAt");
    TextRules::requireTime(signal.observedAt, observed, findings);
    requireNotAfterEdition(signal.observedAt, context, observed, findings);
    if (!signal.publishedAt) {
        return;
    }
    const QString published = member(place, "publishedAt");
    TextRules::requireTime(*signal.publishedAt, published, findings);
    if (isLater(*signal.publishedAt, signal.observedAt)) {
        findings.error(published, u"发布时间晚于核验时间 observedAt：请改正其中一个"_qs);
    }
}

void checkTexts(const InformationSignal& signal, const QString& place, Findings& findings)
{
    TextRules::requireText(signal.source, member(place, "source"), findings);
    TextRules::requireSentence(signal.title, member(place, "title"), findings);
    TextRules::requireSentence(signal.summary, member(place, "summary"), findings);
    TextRules::checkSentence(signal.updateSummary, member(place, "updateSummary"), findings);
    TextRules::checkSentence(signal.digest, member(place, "digest"), findings);
    TextRules::requireSentence(signal.why, member(place, "why"), findings);
    TextRules::requireSentence(signal.caveat, member(place, "caveat"), findings);
    if (signal.kind == InformationSignalKind::Update && !signal.updateSummary) {
        findings.error(member(place, "updateSummary"),
                       u"state 是 update，却没有说变了什么：请补上这一项"_qs);
    }
}

OriginalReachability reachabilityOf(const InformationSignal& signal, const QString& address)
{
    InformationSignal other = signal;
    other.originalURL = address;
    return other.originalReachability();
}

/// Whether a related source stands in for an original that comes and goes.
bool hasSteadyAlternate(const InformationSignal& signal)
{
    return std::ranges::any_of(signal.relatedSources, [&](const InformationRelatedSource& related) {
        return reachabilityOf(signal, related.url) == OriginalReachability::Open;
    });
}

void checkReachability(const InformationSignal& signal, const QString& place, Findings& findings)
{
    const QString related = member(place, "relatedSources");
    switch (signal.originalReachability()) {
    case OriginalReachability::Blocked:
        if (!signal.reachableAlternate()) {
            findings.error(related, u"原文在国内访问受限，却没有备选原文：请补一个能打开的链接"_qs);
        } else if (!hasSteadyAlternate(signal)) {
            findings.hint(related, u"备选原文在国内也不稳定：最好再补一个能打开的链接"_qs);
        }
        break;
    case OriginalReachability::Spotty:
        if (!hasSteadyAlternate(signal)) {
            findings.error(related, u"原文在国内不稳定，却没有备选原文：请补一个能打开的链接"_qs);
        }
        break;
    case OriginalReachability::Open:
        break;
    }
}

void checkLinks(const InformationSignal& signal, const QString& place, Findings& findings)
{
    TextRules::requireAddress(signal.originalURL, member(place, "originalUrl"), findings);
    const QString list = member(place, "relatedSources");
    for (qsizetype index = 0; index < signal.relatedSources.size(); ++index) {
        const QString entry = element(list, index);
        TextRules::requireText(signal.relatedSources[index].label, member(entry, "label"),
                               findings);
        TextRules::requireAddress(signal.relatedSources[index].url, member(entry, "url"), findings);
    }
    checkReachability(signal, place, findings);
}

void checkTimeline(const QList<InformationTimelineEvent>& timeline, const QString& place,
                   const EditionContext& context, Findings& findings)
{
    if (timeline.isEmpty()) {
        findings.error(place, u"时间线是空的：请至少写一条"_qs);
    }
    for (qsizetype index = 0; index < timeline.size(); ++index) {
        const InformationTimelineEvent& event = timeline[index];
        const QString entry = element(place, index);
        const QString time = member(entry, "datetime");
        TextRules::requireText(event.dateLabel, member(entry, "date"), findings);
        TextRules::requireSentence(event.summary, member(entry, "summary"), findings);
        TextRules::requireText(event.source, member(entry, "source"), findings);
        TextRules::requireTime(event.date, time, findings);
        requireNotAfterEdition(event.date, context, time, findings);
        if (index > 0 && isLater(event.date, timeline[index - 1].date)) {
            findings.error(time, u"比上一条晚：时间线请从新到旧排"_qs);
        }
    }
}

void checkFollowTarget(const InformationFollowTarget& target, const QString& place,
                       Findings& findings)
{
    TextRules::requireText(target.id, member(place, "id"), findings);
    TextRules::requireText(target.label, member(place, "label"), findings);
    TextRules::requireSentence(target.scope, member(place, "scope"), findings);
    TextRules::requireAddress(target.url, member(place, "url"), findings);
}

void checkSignal(const InformationSignal& signal, const QString& place,
                 const EditionContext& context, Findings& findings)
{
    checkTimes(signal, place, context, findings);
    checkLinks(signal, place, findings);
    checkTexts(signal, place, findings);
    checkTimeline(signal.timeline, member(place, "timeline"), context, findings);
    checkFollowTarget(signal.followTarget, member(place, "followTarget"), findings);
    TextRules::requireText(signal.ingestion.adapter, member(member(place, "ingestion"), "adapter"),
                           findings);
}

void checkId(const QString& id, const QString& place, QHash<QString, QString>& places,
             Findings& findings)
{
    const QString idPlace = member(place, "id");
    TextRules::requireText(id, idPlace, findings);
    if (const auto first = places.constFind(id); first != places.cend()) {
        findings.error(idPlace,
                       u"编号“%1”已经在 %2 用过：每张卡片的编号只能出现一次"_qs.arg(id, *first));
    } else {
        places.insert(id, idPlace);
    }
}

} // namespace

void SignalCheck::check(const QList<InformationSignal>& signalList, const QString& place,
                        const EditionContext& context, Findings& findings)
{
    QHash<QString, QString> places;
    for (qsizetype index = 0; index < signalList.size(); ++index) {
        const QString entry = element(place, index);
        checkId(signalList[index].id, entry, places, findings);
        checkSignal(signalList[index], entry, context, findings);
    }
}
