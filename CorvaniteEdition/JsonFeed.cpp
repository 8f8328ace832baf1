// SPDX-License-Identifier: Apache-2.0

#include "JsonFeed.h"

#include "FeedLink.h"
#include "FeedTime.h"
#include "JsonPlace.h"
#include "PlainText.h"
#include "TextPlace.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace {

QString firstOf(const QJsonObject& object, std::initializer_list<QLatin1StringView> keys)
{
    for (const QLatin1StringView key : keys) {
        if (const QString text = object.value(key).toString(); !text.isEmpty()) {
            return text;
        }
    }
    return {};
}

FeedEntry entryOf(const QJsonObject& item, const QUrl& base)
{
    const QString plain =
        firstOf(item, {QLatin1StringView("summary"), QLatin1StringView("content_text")});
    return {
        .id = item.value(u"id").toVariant().toString(),
        .title = PlainText::oneLine(item.value(u"title").toString()),
        .summary = plain.isEmpty() ? PlainText::ofHtml(item.value(u"content_html").toString())
                                   : PlainText::oneLine(plain),
        .link = FeedLink::resolved(
            firstOf(item, {QLatin1StringView("url"), QLatin1StringView("external_url")}), base),
        .publishedAt = FeedTime::stamp(firstOf(
            item, {QLatin1StringView("date_published"), QLatin1StringView("date_modified")})),
    };
}

} // namespace

std::expected<Feed, Finding> JsonFeed::read(const QString& file, const QByteArray& bytes)
{
    const auto refusal = [&](const QString& place, const QString& text) {
        return std::unexpected(Finding{Finding::Severity::Error, file, place, text});
    };
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(bytes, &error).object();
    if (error.error != QJsonParseError::NoError) {
        return refusal(TextPlace::of(bytes, error.offset),
                       u"从这里起不是 JSON：请重新保存完整的订阅源"_qs);
    }
    if (!root.value(u"version").toString().startsWith(u"https://jsonfeed.org/version/1")) {
        return refusal(JsonPlace::member(JsonPlace::root, "version"),
                       u"不是 JSON Feed 的版本：请核对是不是订阅源"_qs);
    }
    const QString itemsPlace = JsonPlace::member(JsonPlace::root, "items");
    if (!root.value(u"items").isArray()) {
        return refusal(itemsPlace, u"没有条目：请核对是不是订阅源"_qs);
    }
    Feed feed{
        .file = file,
        .title = PlainText::oneLine(root.value(u"title").toString()),
        .address =
            firstOf(root, {QLatin1StringView("home_page_url"), QLatin1StringView("feed_url")}),
        .entries = {},
    };
    const QUrl base(
        firstOf(root, {QLatin1StringView("feed_url"), QLatin1StringView("home_page_url")}));
    const QJsonArray items = root.value(u"items").toArray();
    for (qsizetype index = 0; index < items.size(); ++index) {
        if (!items[index].isObject()) {
            return refusal(JsonPlace::element(itemsPlace, index),
                           u"这一条不是对象：请重新保存完整的订阅源"_qs);
        }
        feed.entries.append(entryOf(items[index].toObject(), base));
    }
    return feed;
}
