// SPDX-License-Identifier: Apache-2.0

#include "SampleSignal.h"

InformationSignal sampleSignal(const QString& id)
{
    const QString target = u"target:"_qs + id;
    return {
        .id = id,
        .kind = InformationSignalKind::New,
        .lane = InformationLane::ProductRadar,
        .publishedAt = std::nullopt,
        .observedAt = u"2026-09-01T00:00:00Z"_qs,
        .originalURL = u"https://origin.example/"_qs + id,
        .relatedSources = {},
        .source = u"Source of "_qs + id,
        .title = u"Title of "_qs + id,
        .summary = u"Summary of "_qs + id,
        .updateSummary = std::nullopt,
        .digest = std::nullopt,
        .why = u"Why "_qs + id,
        .caveat = u"Caveat of "_qs + id,
        .timeline = {},
        .followTarget = {.id = target,
                         .label = u"Label of "_qs + target,
                         .scope = u"Scope of "_qs + target,
                         .url = u"https://target.example/"_qs + id,
                         .updateMode = InformationFollowUpdateMode::VerifiedChange,
                         .discoveryRef = std::nullopt},
        .ingestion = {.mode = InformationIngestionMode::Editorial,
                      .adapter = u"syndication-feed"_qs,
                      .evidenceClass = InformationEvidenceClass::OfficialStatement,
                      .observationRef = std::nullopt,
                      .changeRef = std::nullopt,
                      .supportingEvidence = {}},
    };
}

InformationSignal sampleSignal(const QString& id, const QString& target)
{
    InformationSignal signal = sampleSignal(id);
    signal.followTarget.id = target;
    return signal;
}

QStringList idsOf(const QList<InformationSignal>& signals)
{
    QStringList ids;
    for (const InformationSignal& signal : signals) {
        ids.append(signal.id);
    }
    return ids;
}
