// SPDX-License-Identifier: Apache-2.0

#include "FeedReader.h"
#include "Subject.h"

#include <QFile>
#include <QTest>

class FeedReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsRss()
    {
        const auto feed = read(u"rss.xml"_qs);
        QVERIFY(feed);
        QCOMPARE(feed->title, u"河边工坊 & 日志"_qs);
        QCOMPARE(feed->address, u"https://workshop.example.org/"_qs);
        const QList<FeedEntry> entries{
            {.id = u"workshop-0042"_qs,
             .title = u"纸鸢 2.0 发布：离线也能排版"_qs,
             .summary = u"排版引擎换成了新的，“断网”时也能用。 旧稿不必转换…"_qs,
             .link = u"https://workshop.example.org/posts/kite-2.html"_qs,
             .publishedAt = u"2026-08-26T02:30:00.000Z"_qs},
            {.id = {},
             .title = u"Kite <2.1> roadmap"_qs,
             .summary = u"Three months, four themes."_qs,
             .link = u"https://workshop.example.org/posts/roadmap?year=2026"_qs,
             .publishedAt = u"2026-08-25T00:00:00.000Z"_qs},
            {.id = u"https://workshop.example.org/notes/7"_qs,
             .title = u"没有日期 也没有链接"_qs,
             .summary = {},
             .link = u"https://workshop.example.org/notes/7"_qs,
             .publishedAt = {}},
        };
        QCOMPARE(feed->entries, entries);
    }

    void readsAtom()
    {
        const auto feed = read(u"atom.xml"_qs);
        QVERIFY(feed);
        QCOMPARE(feed->title, u"Lantern & Compass"_qs);
        QCOMPARE(feed->address, u"https://lantern.example.org/blog/"_qs);
        const QList<FeedEntry> entries{
            {.id = u"tag:lantern.example.org,2026:compass"_qs,
             .title = u"Compass reads maps offline"_qs,
             .summary = u"Maps stay on the device."_qs,
             .link = u"https://lantern.example.org/blog/2026/compass-offline/"_qs,
             .publishedAt = u"2026-08-26T01:15:30.500Z"_qs},
            {.id = u"tag:lantern.example.org,2026:lantern-1-4"_qs,
             .title = u"Lantern 1.4"_qs,
             .summary = u"Brighter at night."_qs,
             .link = u"https://lantern.example.org/notes/1-4"_qs,
             .publishedAt = u"2026-08-24T00:00:00.000Z"_qs},
        };
        QCOMPARE(feed->entries, entries);
    }

    void readsJsonFeed()
    {
        const auto feed = read(u"feed.json"_qs);
        QVERIFY(feed);
        QCOMPARE(feed->title, u"山谷数据站"_qs);
        QCOMPARE(feed->address, u"https://valley.example.org/"_qs);
        const QList<FeedEntry> entries{
            {.id = u"valley-9"_qs,
             .title = u"水位数据开放下载"_qs,
             .summary = u"十年的逐日记录。"_qs,
             .link = u"https://valley.example.org/reports/water-2026"_qs,
             .publishedAt = u"2026-08-26T00:00:00.000Z"_qs},
            {.id = u"10"_qs,
             .title = {},
             .summary = u"A map, drawn anew."_qs,
             .link = u"https://maps.example.org/valley"_qs,
             .publishedAt = {}},
        };
        QCOMPARE(feed->entries, entries);
    }

    void knowsEncodings_data()
    {
        QTest::addColumn<QString>("file");
        for (const char* file : {"byte-order-mark.xml", "gbk.xml", "gb2312.xml", "utf-16.xml"}) {
            QTest::newRow(file) << QString::fromLatin1(file);
        }
    }

    void knowsEncodings()
    {
        QFETCH(QString, file);
        const auto feed = read(file);
        QVERIFY(feed);
        QCOMPARE(feed->title, u"镕石周刊"_qs);
        QCOMPARE(feed->entries.size(), 1);
        QCOMPARE(feed->entries.front().title, u"喆学与编译器"_qs);
    }

    void tellsWhereAFeedIsBroken_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("line");

        const auto row = [](const QString& file, const QString& line) {
            QTest::newRow(qPrintable(file)) << file << line;
        };
        const QString cutShort = u"错误：文件到这里就断了：请重新保存完整的订阅源"_qs;
        const QString notXml = u"错误：从这里起不是正确的 XML：请检查标签、实体和编码"_qs;
        row(u"empty.xml"_qs, u"empty.xml:第 1 行第 1 列: "_qs + cutShort);
        row(u"cut-short.xml"_qs, u"cut-short.xml:第 2 行第 25 列: "_qs + cutShort);
        row(u"wrong-tag.xml"_qs, u"wrong-tag.xml:第 2 行第 26 列: "_qs + notXml);
        row(u"laughs.xml"_qs, u"laughs.xml:第 14 行第 39 列: "_qs + notXml);
        row(u"not-utf-8.xml"_qs, u"not-utf-8.xml:第 1 行第 39 列: "_qs + notXml);
        row(u"not-gbk.xml"_qs,
            u"not-gbk.xml: 错误：内容不是声明的中文编码：请按原来的编码重新保存"_qs);
        row(u"page.xml"_qs, u"page.xml:第 1 行第 44 列: "
                            "错误：最外层既不是 rss 也不是 Atom 的 feed：请核对是不是订阅源"_qs);
        row(u"no-channel.xml"_qs,
            u"no-channel.xml:第 1 行第 26 列: 错误：rss 里没有 channel：请核对是不是订阅源"_qs);
        row(u"cut-short.json"_qs,
            u"cut-short.json:第 1 行第 59 列: 错误：从这里起不是 JSON：请重新保存完整的订阅源"_qs);
        row(u"other.json"_qs,
            u"other.json:$.version: 错误：不是 JSON Feed 的版本：请核对是不是订阅源"_qs);
        row(u"no-items.json"_qs, u"no-items.json:$.items: 错误：没有条目：请核对是不是订阅源"_qs);
        row(u"item-text.json"_qs,
            u"item-text.json:$.items[1]: 错误：这一条不是对象：请重新保存完整的订阅源"_qs);
    }

    void tellsWhereAFeedIsBroken()
    {
        QFETCH(QString, file);
        const auto feed = read(file);
        QVERIFY(!feed);
        QTEST(feed.error().line(), "line");
    }

    void readsNothingFromOutside()
    {
        const auto feed = read(u"outside-entity.xml"_qs);
        QVERIFY(feed);
        QCOMPARE(feed->title, QString());
    }

    void survivesDeepNesting()
    {
        constexpr qsizetype depth = 200'000;
        const QByteArray feed = "<rss version=\"2.0\"><channel><title>" +
                                QByteArray("<b>").repeated(depth) + "deep" +
                                QByteArray("</b>").repeated(depth) + "</title></channel></rss>";
        const auto read = FeedReader::read(u"deep.xml"_qs, feed);
        QVERIFY(read);
        QCOMPARE(read->title, u"deep"_qs);
        QVERIFY(!FeedReader::read(u"deep.json"_qs, "{\"a\":" + QByteArray("[").repeated(depth)));
    }

private:
    static std::expected<Feed, Finding> read(const QString& name)
    {
        QFile file(QStringLiteral(FEEDS "/") + name);
        return file.open(QIODevice::ReadOnly) ? FeedReader::read(name, file.readAll())
                                              : std::unexpected(Finding{});
    }
};

TEST_SUBJECT(FeedReaderTest)
#include "FeedReaderTest.moc"
