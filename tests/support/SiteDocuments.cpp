// SPDX-License-Identifier: Apache-2.0

#include "SiteDocuments.h"

#include <QJsonDocument>

namespace SiteDocuments {

QJsonArray signals(const QStringList& ids)
{
    QJsonArray result;
    for (const QString& id : ids) {
        result.append(QJsonObject{
            {u"id"_qs, id},
            {u"state"_qs, u"new"_qs},
            {u"lane"_qs, u"workflow"_qs},
            {u"observedAt"_qs, u"2026-09-02T00:00:00Z"_qs},
            {u"originalUrl"_qs, QString(u"https://origin.example/"_qs + id)},
            {u"title"_qs, QJsonObject{{u"zh"_qs, QString(u"Title of "_qs + id)}}},
            {u"why"_qs, QJsonObject()},
            {u"caveat"_qs, QJsonObject()},
            {u"timeline"_qs, QJsonArray()},
            {u"followTarget"_qs, QJsonObject{{u"id"_qs, QString(u"target:"_qs + id)},
                                             {u"url"_qs, u"https://target.example"_qs},
                                             {u"updateMode"_qs, u"verified-change"_qs}}},
            {u"ingestion"_qs, QJsonObject{{u"mode"_qs, u"editorial"_qs},
                                          {u"adapter"_qs, u"syndication-feed"_qs},
                                          {u"evidenceClass"_qs, u"team-report"_qs}}},
        });
    }
    return result;
}

QByteArray pack(const QString& asOf, const QStringList& ids, const QStringList& days)
{
    QJsonArray history;
    for (const QString& date : days) {
        history.append(QJsonObject{
            {u"date"_qs, date}, {u"focusSignalIds"_qs, QJsonArray()}, {u"totalShown"_qs, 3}});
    }
    return QJsonDocument(
               QJsonObject{{u"schemaVersion"_qs, u"corvanite-public-information-pack-v6"_qs},
                           {u"asOf"_qs, asOf},
                           {u"checkedEntryCount"_qs, 478},
                           {u"signals"_qs, signals(ids)},
                           {u"selectionHistory"_qs, history}})
        .toJson();
}

QByteArray retired(const QStringList& ids)
{
    return QJsonDocument(QJsonObject{{u"signals"_qs, signals(ids)}}).toJson();
}

QByteArray appVersion(const QString& version, const QJsonObject& changes)
{
    QJsonObject document{
        {u"schemaVersion"_qs, u"corvanite-information-app-version-v1"_qs},
        {u"version"_qs, version},
        {u"downloadUrl"_qs, u"https://corvanite.example/download"_qs},
        {u"sha256"_qs, u"0123456789abcdef"_qs},
    };
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        document.insert(change.key(), change.value());
    }
    return QJsonDocument(document).toJson();
}

} // namespace SiteDocuments
