// SPDX-License-Identifier: Apache-2.0

#include "DraftPack.h"

#include "EditionWriter.h"
#include "FeedTime.h"
#include "InformationPackSync.h"
#include "InformationProjection.h"
#include "Slug.h"
#include "TextRules.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QSet>
#include <QUrl>

namespace {

/// In the language it is written in, so that `check` tells what is left to be translated.
QJsonObject localized(const QString& text)
{
    const bool isChinese = text.isEmpty() || TextRules::hasChinese(text);
    return {{isChinese ? u"zh"_qs : u"en"_qs, text}};
}

const QJsonObject toBeFilledIn{{u"zh"_qs, QString()}};

/// As much as a person needs to decide.
QString beginning(const QString& text)
{
    constexpr qsizetype longest = 400;
    return text.size() <= longest ? text : text.first(longest).trimmed() + u'…';
}

QString sourceName(const Feed& feed)
{
    return feed.title.isEmpty() ? QFileInfo(feed.file).completeBaseName() : feed.title;
}

QString sourceSlug(const Feed& feed)
{
    QString host = QUrl(feed.address).host(QUrl::FullyEncoded);
    if (host.startsWith(u"www.")) {
        host = host.sliced(4);
    }
    for (const QString& name : {host, feed.title, QFileInfo(feed.file).completeBaseName()}) {
        if (const QString slug = Slug::of(name); !slug.isEmpty()) {
            return slug;
        }
    }
    return u"feed"_qs;
}

/// The address's last words, else what is left of the title, else a digest of what there is.
QString itemSlug(const FeedEntry& entry)
{
    const QUrl url(entry.link);
    const QString path = url.path().endsWith(u'/') ? url.path().chopped(1) : url.path();
    QString page = path.sliced(path.lastIndexOf(u'/') + 1);
    if (const qsizetype dot = page.lastIndexOf(u'.'); dot > 0) {
        page.truncate(dot);
    }
    for (const QString& name : {page + u'-' + url.query(), entry.title}) {
        if (const QString slug = Slug::of(name); !slug.isEmpty()) {
            return slug;
        }
    }
    return Slug::digest(entry.link + entry.id + entry.title + entry.summary);
}

QString uniqueId(const QString& wanted, QSet<QString>& taken)
{
    QString id = wanted;
    for (int number = 2; taken.contains(id); ++number) {
        id = wanted + u'-' + QString::number(number);
    }
    taken.insert(id);
    return id;
}

QString dayLabel(const QString& stamp)
{
    const QString day = InformationProjection::beijingDay(
        InformationProjection::isoMilliseconds(stamp).value_or(0));
    return u"%1 月 %2 日"_qs.arg(day.sliced(5, 2).toInt()).arg(day.sliced(8, 2).toInt());
}

QJsonObject timelineEvent(const Feed& feed, const QString& stamp)
{
    return {
        {u"date"_qs, QJsonObject{{u"zh"_qs, dayLabel(stamp)}}},
        {u"datetime"_qs, stamp},
        {u"summary"_qs, toBeFilledIn},
        {u"source"_qs, localized(sourceName(feed))},
    };
}

QJsonObject followTarget(const FeedEntry& entry, const QString& id)
{
    return {
        {u"id"_qs, u"item:"_qs + id},
        {u"label"_qs, localized(entry.title)},
        {u"scope"_qs, toBeFilledIn},
        {u"url"_qs, entry.link},
        {u"updateMode"_qs, u"snapshot-baseline"_qs},
    };
}

QJsonObject ingestion(const Feed& feed, const FeedEntry& entry)
{
    const QString key = entry.id.isEmpty() ? entry.link : entry.id;
    return {
        {u"mode"_qs, u"editorial"_qs},
        {u"adapter"_qs, u"syndication-feed"_qs},
        {u"evidenceClass"_qs, QString()},
        {u"observationRef"_qs, QFileInfo(feed.file).fileName() + u'#' + key},
    };
}

QJsonObject draft(const Feed& feed, const FeedEntry& entry, const QString& id,
                  const QString& observedAt)
{
    QJsonObject signal{
        {u"id"_qs, id},
        {u"state"_qs, u"new"_qs},
        {u"lane"_qs, QString()},
        {u"observedAt"_qs, observedAt},
        {u"originalUrl"_qs, entry.link},
        {u"relatedSources"_qs, QJsonArray()},
        {u"source"_qs, localized(sourceName(feed))},
        {u"title"_qs, localized(entry.title)},
        {u"summary"_qs, localized(beginning(entry.summary))},
        {u"digest"_qs, toBeFilledIn},
        {u"why"_qs, toBeFilledIn},
        {u"caveat"_qs, toBeFilledIn},
        {u"timeline"_qs, QJsonArray{timelineEvent(feed, entry.publishedAt.value_or(observedAt))}},
        {u"followTarget"_qs, followTarget(entry, id)},
        {u"ingestion"_qs, ingestion(feed, entry)},
    };
    if (entry.publishedAt) {
        signal.insert(u"publishedAt"_qs, *entry.publishedAt);
    }
    return signal;
}

qsizetype entryCount(const QList<Feed>& feeds)
{
    qsizetype count = 0;
    for (const Feed& feed : feeds) {
        count += feed.entries.size();
    }
    return count;
}

QJsonArray drafts(const QList<Feed>& feeds, const QString& observedAt)
{
    QJsonArray all;
    QSet<QString> ids;
    QSet<QString> links;
    for (const Feed& feed : feeds) {
        for (const FeedEntry& entry : feed.entries) {
            if (!entry.link.isEmpty() && links.contains(entry.link)) {
                continue;
            }
            links.insert(entry.link);
            const QString id = uniqueId(sourceSlug(feed) + u'-' + itemSlug(entry), ids);
            all.append(draft(feed, entry, id, observedAt));
        }
    }
    return all;
}

} // namespace

QByteArray DraftPack::of(const QList<Feed>& feeds, qint64 now)
{
    const QString observedAt = FeedTime::stampOf(now);
    const QJsonArray signalList = drafts(feeds, observedAt);
    const QJsonObject day{
        {u"date"_qs, InformationProjection::beijingDay(now)},
        {u"focusSignalIds"_qs, QJsonArray()},
        {u"totalShown"_qs, signalList.size()},
    };
    return EditionWriter::document(
        DocumentKind::Pack,
        {
            {u"schemaVersion"_qs, QString(InformationPackSync::expectedSchemaVersion)},
            {u"asOf"_qs, observedAt},
            {u"checkedEntryCount"_qs, entryCount(feeds)},
            {u"signals"_qs, signalList},
            {u"selectionHistory"_qs, QJsonArray{day}},
        });
}
