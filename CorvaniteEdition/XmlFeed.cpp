// SPDX-License-Identifier: Apache-2.0

#include "XmlFeed.h"

#include "FeedLink.h"
#include "FeedTime.h"
#include "PlainText.h"
#include "TextPlace.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr QLatin1StringView atomNamespace("http://www.w3.org/2005/Atom");
constexpr QLatin1StringView xmlNamespace("http://www.w3.org/XML/1998/namespace");
constexpr QLatin1StringView dublinCoreNamespace("http://purl.org/dc/elements/1.1/");
constexpr QLatin1StringView contentNamespace("http://purl.org/rss/1.0/modules/content/");

/// Feeds write names of HTML that XML does not know.
class HtmlNames : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString& name) override
    {
        return PlainText::namedCharacter(name);
    }
};

/// The text of a feed whose declared Chinese encoding is narrower than what is written in it:
/// GB18030 holds all of GB2312 and GBK. Nothing for any other encoding, which the XML reader knows.
std::optional<QString> chineseText(const QByteArray& bytes)
{
    static const QRegularExpression declaration(
        u"^\\s*<\\?xml[^>]*encoding\\s*=\\s*[\"'](gb2312|gbk|gb18030|x-gbk|cp936)[\"']"_qs,
        QRegularExpression::CaseInsensitiveOption);
    constexpr qsizetype longestDeclaration = 200;
    if (!declaration
             .match(QString::fromLatin1(bytes.first(std::min(longestDeclaration, bytes.size()))))
             .hasMatch()) {
        return std::nullopt;
    }
    return QStringDecoder("GB18030")(bytes);
}

QUrl baseOf(const QXmlStreamReader& xml, const QUrl& base)
{
    const auto own = xml.attributes().value(xmlNamespace, QLatin1StringView("base"));
    if (own.isEmpty()) {
        return base;
    }
    const QUrl url(own.toString());
    return base.isEmpty() ? url : base.resolved(url);
}

/// One walk through a feed, every relative link resolved against a base.
class Walk
{
public:
    Walk(QXmlStreamReader& xml, QUrl base) : m_xml(xml), m_base(std::move(base)) {}

    Feed feed()
    {
        Feed feed;
        if (!m_xml.readNextStartElement()) {
            return feed;
        }
        if (isAtom(u"feed")) {
            readAtom(feed);
        } else if (isPlain(u"rss")) {
            readRss(feed);
        } else {
            m_xml.raiseError(u"最外层既不是 rss 也不是 Atom 的 feed"_qs);
        }
        while (!m_xml.atEnd()) {
            m_xml.readNext();
        }
        return feed;
    }

private:
    bool isAtom(QStringView name) const
    {
        return m_xml.name() == name && m_xml.namespaceUri() == atomNamespace;
    }

    bool isPlain(QStringView name) const
    {
        return m_xml.name() == name && m_xml.namespaceUri().isEmpty();
    }

    bool isOf(QLatin1StringView namespaceUri, QStringView name) const
    {
        return m_xml.name() == name && m_xml.namespaceUri() == namespaceUri;
    }

    /// The characters of the element and of all elements in it, however deep they are nested.
    QString text()
    {
        QString text;
        for (qsizetype depth = 1; depth > 0 && !m_xml.atEnd();) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                ++depth;
                break;
            case QXmlStreamReader::EndElement:
                --depth;
                break;
            case QXmlStreamReader::Characters:
            case QXmlStreamReader::EntityReference:
                text += m_xml.text();
                break;
            default:
                break;
            }
        }
        return text;
    }

    QString plainText() { return PlainText::oneLine(text()); }
    QString htmlText() { return PlainText::ofHtml(text()); }

    QString atomText()
    {
        const bool isHtml = m_xml.attributes().value(u"type"_qs) == u"html";
        return isHtml ? htmlText() : plainText();
    }

    void readRss(Feed& feed)
    {
        const QUrl base = baseOf(m_xml, m_base);
        bool hasChannel = false;
        while (m_xml.readNextStartElement()) {
            if (isPlain(u"channel")) {
                hasChannel = true;
                readChannel(feed, base);
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (!hasChannel && !m_xml.hasError()) {
            m_xml.raiseError(u"rss 里没有 channel"_qs);
        }
    }

    void readChannel(Feed& feed, const QUrl& outer)
    {
        const QUrl base = baseOf(m_xml, outer);
        while (m_xml.readNextStartElement()) {
            if (isPlain(u"title")) {
                feed.title = htmlText();
            } else if (isPlain(u"link")) {
                feed.address = plainText();
            } else if (isPlain(u"item")) {
                feed.entries.append(readItem(base));
            } else {
                m_xml.skipCurrentElement();
            }
        }
    }

    FeedEntry readItem(const QUrl& outer)
    {
        const QUrl base = baseOf(m_xml, outer);
        FeedEntry entry;
        QString content;
        bool idIsLink = false;
        while (m_xml.readNextStartElement()) {
            if (isPlain(u"title")) {
                entry.title = htmlText();
            } else if (isPlain(u"link")) {
                const QUrl own = baseOf(m_xml, base);
                entry.link = FeedLink::resolved(plainText(), own);
            } else if (isPlain(u"guid")) {
                idIsLink = m_xml.attributes().value(u"isPermaLink"_qs) != u"false";
                entry.id = plainText();
            } else if (isPlain(u"description")) {
                entry.summary = htmlText();
            } else if (isOf(contentNamespace, u"encoded")) {
                content = htmlText();
            } else if (isPlain(u"pubDate") || isOf(dublinCoreNamespace, u"date")) {
                readTime(entry);
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (entry.link.isEmpty() && idIsLink) {
            entry.link = FeedLink::resolved(entry.id, base);
        }
        if (entry.summary.isEmpty()) {
            entry.summary = content;
        }
        return entry;
    }

    void readAtom(Feed& feed)
    {
        const QUrl base = baseOf(m_xml, m_base);
        QString self;
        while (m_xml.readNextStartElement()) {
            if (isAtom(u"title")) {
                feed.title = atomText();
            } else if (isAtom(u"link")) {
                const auto relation = m_xml.attributes().value(u"rel"_qs);
                const QString link = atomLink(base);
                if (relation == u"self") {
                    self = link;
                } else if (isAlternate(relation) && feed.address.isEmpty()) {
                    feed.address = link;
                }
                m_xml.skipCurrentElement();
            } else if (isAtom(u"entry")) {
                feed.entries.append(readEntry(base));
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (QUrl(feed.address).isRelative()) {
            feed.address = self;
        }
    }

    FeedEntry readEntry(const QUrl& outer)
    {
        const QUrl base = baseOf(m_xml, outer);
        FeedEntry entry;
        QString content;
        std::optional<QString> updatedAt;
        while (m_xml.readNextStartElement()) {
            if (isAtom(u"title")) {
                entry.title = atomText();
            } else if (isAtom(u"id")) {
                entry.id = plainText();
            } else if (isAtom(u"link")) {
                if (entry.link.isEmpty() && isAlternate(m_xml.attributes().value(u"rel"_qs))) {
                    entry.link = atomLink(base);
                }
                m_xml.skipCurrentElement();
            } else if (isAtom(u"summary")) {
                entry.summary = atomText();
            } else if (isAtom(u"content")) {
                content = atomText();
            } else if (isAtom(u"published")) {
                readTime(entry);
            } else if (isAtom(u"updated")) {
                updatedAt = FeedTime::stamp(text());
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (!entry.publishedAt) {
            entry.publishedAt = updatedAt;
        }
        if (entry.summary.isEmpty()) {
            entry.summary = content;
        }
        return entry;
    }

    static bool isAlternate(QStringView relation)
    {
        return relation.isEmpty() || relation == u"alternate";
    }

    QString atomLink(const QUrl& outer) const
    {
        const QString link = m_xml.attributes().value(u"href"_qs).trimmed().toString();
        return FeedLink::resolved(link, baseOf(m_xml, outer));
    }

    void readTime(FeedEntry& entry)
    {
        if (const auto stamp = FeedTime::stamp(text()); stamp && !entry.publishedAt) {
            entry.publishedAt = stamp;
        }
    }

    QXmlStreamReader& m_xml;
    QUrl m_base;
};

QString explanation(const QXmlStreamReader& xml)
{
    switch (xml.error()) {
    case QXmlStreamReader::PrematureEndOfDocumentError:
        return u"文件到这里就断了：请重新保存完整的订阅源"_qs;
    case QXmlStreamReader::CustomError:
        return xml.errorString() + u"：请核对是不是订阅源"_qs;
    case QXmlStreamReader::NotWellFormedError:
    case QXmlStreamReader::UnexpectedElementError:
    case QXmlStreamReader::NoError:
        break;
    }
    return u"从这里起不是正确的 XML：请检查标签、实体和编码"_qs;
}

std::expected<Feed, Finding> walk(const QString& file, QXmlStreamReader&& xml, const QUrl& base)
{
    HtmlNames htmlNames;
    xml.setEntityResolver(&htmlNames);
    Feed feed = Walk(xml, base).feed();
    if (xml.hasError()) {
        return std::unexpected(Finding{Finding::Severity::Error, file,
                                       TextPlace::at(xml.lineNumber(), xml.columnNumber() + 1),
                                       explanation(xml)});
    }
    feed.file = file;
    return feed;
}

template <typename Source>
std::expected<Feed, Finding> readFrom(const QString& file, const Source& source)
{
    auto feed = walk(file, QXmlStreamReader(source), QUrl());
    if (!feed || feed->address.isEmpty()) {
        return feed;
    }
    // Where the feed lies is known only at its end, and what it links to begins there.
    return walk(file, QXmlStreamReader(source), QUrl(feed->address));
}

} // namespace

std::expected<Feed, Finding> XmlFeed::read(const QString& file, const QByteArray& bytes)
{
    const auto chinese = chineseText(bytes);
    if (!chinese) {
        return readFrom(file, bytes);
    }
    if (chinese->contains(QChar::ReplacementCharacter)) {
        return std::unexpected(Finding{Finding::Severity::Error, file, QString(),
                                       u"内容不是声明的中文编码：请按原来的编码重新保存"_qs});
    }
    return readFrom(file, *chinese);
}
