// SPDX-License-Identifier: Apache-2.0

#include "VectorFixtures.h"

#include "InformationWorkspaceCoding.h"

#include <QJsonDocument>

namespace {

QString textOr(const QJsonObject& object, QLatin1StringView key, const QString& fallback)
{
    return object.value(key).toString(fallback);
}

QByteArray joinedParts(const QJsonArray& parts)
{
    QByteArray bytes;
    for (const auto& part : parts) {
        const auto pair = part.toArray();
        bytes += pair.at(0).toString().toUtf8().repeated(pair.at(1).toInteger());
    }
    return bytes;
}

} // namespace

namespace VectorFixtures {

std::optional<QByteArray> document(const QJsonObject& doc)
{
    if (doc.contains(QLatin1StringView("missing"))) {
        return std::nullopt;
    }
    if (doc.contains(QLatin1StringView("base64"))) {
        return QByteArray::fromBase64(doc.value(QLatin1StringView("base64")).toString().toLatin1());
    }
    if (doc.contains(QLatin1StringView("parts"))) {
        return joinedParts(doc.value(QLatin1StringView("parts")).toArray());
    }
    return doc.value(QLatin1StringView("text")).toString().toUtf8();
}

QByteArray scriptDocument(const QJsonValue& doc)
{
    return doc.isString() ? doc.toString().toUtf8() : QJsonDocument(doc.toObject()).toJson();
}

SiteClient::Answer siteAnswer(const QJsonValue& reply, const QByteArray& body)
{
    if (!reply.isObject()) {
        return std::unexpected(SiteError::Transport);
    }
    const QJsonValue status = reply.toObject().value(QLatin1StringView("status"));
    return SiteReply{body, status.isNull() ? std::optional<int>() : status.toInt(200)};
}

InformationSignal shortSignal(const QJsonObject& shortForm)
{
    const QString id = shortForm.value(QLatin1StringView("id")).toString();
    const QString target = textOr(shortForm, QLatin1StringView("target"), u"t:"_qs + id);
    QList<InformationRelatedSource> relatedSources;
    for (const auto& entry : shortForm.value(QLatin1StringView("relatedSources")).toArray()) {
        const auto source = entry.toObject();
        relatedSources.append({source.value(QLatin1StringView("label")).toString(),
                               source.value(QLatin1StringView("url")).toString()});
    }
    return {
        .id = id,
        .kind = fromRawValue<InformationSignalKind>(
                    textOr(shortForm, QLatin1StringView("kind"), u"new"_qs))
                    .value(),
        .lane = fromRawValue<InformationLane>(
                    textOr(shortForm, QLatin1StringView("lane"), u"productRadar"_qs))
                    .value(),
        .publishedAt = std::nullopt,
        .observedAt =
            textOr(shortForm, QLatin1StringView("observedAt"), u"2026-09-01T00:00:00Z"_qs),
        .originalURL =
            textOr(shortForm, QLatin1StringView("originalURL"), u"https://origin.example/"_qs + id),
        .relatedSources = relatedSources,
        .source = textOr(shortForm, QLatin1StringView("source"), u"Source "_qs + id),
        .title = textOr(shortForm, QLatin1StringView("title"), u"Title "_qs + id),
        .summary = {},
        .updateSummary = std::nullopt,
        .digest = std::nullopt,
        .why = textOr(shortForm, QLatin1StringView("why"), u"Why "_qs + id),
        .caveat = {},
        .timeline = {},
        .followTarget =
            {
                .id = target,
                .label = textOr(shortForm, QLatin1StringView("label"), u"Label "_qs + target),
                .scope = textOr(shortForm, QLatin1StringView("scope"), u"Scope "_qs + target),
                .url = textOr(shortForm, QLatin1StringView("targetUrl"),
                              u"https://target.example/"_qs + target),
                .updateMode =
                    fromRawValue<InformationFollowUpdateMode>(
                        textOr(shortForm, QLatin1StringView("updateMode"), u"snapshot-baseline"_qs))
                        .value(),
                .discoveryRef = std::nullopt,
            },
        .ingestion =
            {
                .mode = InformationIngestionMode::Editorial,
                .adapter = {},
                .evidenceClass = InformationEvidenceClass::CreatorSelfReport,
                .observationRef = std::nullopt,
                .changeRef = std::nullopt,
                .supportingEvidence = {},
            },
    };
}

QList<InformationSignal> shortSignals(const QJsonValue& shortForms)
{
    QList<InformationSignal> signals;
    for (const auto& shortForm : shortForms.toArray()) {
        signals.append(shortSignal(shortForm.toObject()));
    }
    return signals;
}

SelectionDay selectionDay(const QJsonObject& day)
{
    return {day.value(QLatin1StringView("date")).toString(),
            strings(day.value(QLatin1StringView("focusSignalIds"))),
            day.value(QLatin1StringView("totalShown")).toInteger()};
}

QList<SelectionDay> selectionDays(const QJsonValue& days)
{
    QList<SelectionDay> result;
    for (const auto& day : days.toArray()) {
        result.append(selectionDay(day.toObject()));
    }
    return result;
}

QJsonArray toJson(const QList<SelectionDay>& days)
{
    QJsonArray result;
    for (const auto& day : days) {
        result.append(QJsonObject{{u"date"_qs, day.date},
                                  {u"focusSignalIds"_qs, toJson(day.focusSignalIds)},
                                  {u"totalShown"_qs, day.totalShown}});
    }
    return result;
}

InformationWorkspace workspace(const QJsonObject& fileForm)
{
    QJsonObject complete = fileForm;
    if (!complete.contains(QLatin1StringView("version"))) {
        complete.insert(QLatin1StringView("version"), InformationWorkspace::currentVersion);
    }
    return InformationWorkspaceCoding::decode(QJsonDocument(complete).toJson()).value();
}

QJsonObject toJson(const InformationWorkspace& workspace)
{
    return QJsonDocument::fromJson(InformationWorkspaceCoding::encode(workspace)).object();
}

QList<QString> strings(const QJsonValue& array)
{
    QList<QString> texts;
    for (const auto& text : array.toArray()) {
        texts.append(text.toString());
    }
    return texts;
}

QJsonArray toJson(const QList<QString>& texts)
{
    return QJsonArray::fromStringList(texts);
}

QJsonArray ids(const QList<InformationSignal>& signals)
{
    QJsonArray result;
    for (const auto& signal : signals) {
        result.append(signal.id);
    }
    return result;
}

} // namespace VectorFixtures
