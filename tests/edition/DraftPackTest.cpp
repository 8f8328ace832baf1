// SPDX-License-Identifier: Apache-2.0

#include "DraftPack.h"
#include "InformationPackSync.h"
#include "Subject.h"

#include <QTest>

class DraftPackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void draftsAPackThatTheProgramReads()
    {
        const Feed feed{.file = u"feeds/rss.xml"_qs,
                        .title = u"河边工坊"_qs,
                        .address = u"https://www.workshop.example.org/"_qs,
                        .entries = {{.id = u"42"_qs,
                                     .title = u"纸鸢 2.0"_qs,
                                     .summary = u"It flies."_qs,
                                     .link = u"https://workshop.example.org/kite-2.html"_qs,
                                     .publishedAt = u"2026-08-25T23:30:00.000Z"_qs}}};
        const auto pack = InformationPackSync::parse(DraftPack::of({feed}, now));
        QVERIFY(pack);
        QCOMPARE(pack->asOf, u"2026-08-26T20:00:00.000Z"_qs);
        QCOMPARE(pack->checkedEntryCount, 1);
        QCOMPARE(pack->selectionDays, (QList<SelectionDay>{{u"2026-08-27"_qs, {}, 1}}));
        const InformationSignal& signal = pack->signals.front();
        QCOMPARE(signal.id, u"workshop-example-org-kite-2"_qs);
        QCOMPARE(signal.publishedAt, u"2026-08-25T23:30:00.000Z"_qs);
        QCOMPARE(signal.observedAt, pack->asOf);
        QCOMPARE(signal.originalURL, u"https://workshop.example.org/kite-2.html"_qs);
        QCOMPARE(signal.source, u"河边工坊"_qs);
        QCOMPARE(signal.title, u"纸鸢 2.0"_qs);
        QCOMPARE(signal.summary, u"It flies."_qs);
        QCOMPARE(signal.why + signal.caveat + *signal.digest, QString());
        QCOMPARE(signal.timeline,
                 (QList<InformationTimelineEvent>{
                     {u"8 月 26 日"_qs, u"2026-08-25T23:30:00.000Z"_qs, {}, u"河边工坊"_qs}}));
        QCOMPARE(signal.followTarget.id, u"item:workshop-example-org-kite-2"_qs);
        QCOMPARE(signal.ingestion.observationRef, u"rss.xml#42"_qs);
    }

    void namesEverySignalOnce_data()
    {
        QTest::addColumn<QList<FeedEntry>>("entries");
        QTest::addColumn<QStringList>("ids");

        const auto entry = [](const QString& link, const QString& title = {}) {
            return FeedEntry{
                .id = {}, .title = title, .summary = {}, .link = link, .publishedAt = {}};
        };
        QTest::newRow("same page elsewhere")
            << QList{entry(u"https://a.example/1/x"_qs), entry(u"https://a.example/2/x"_qs),
                     entry(u"https://a.example/3/x/"_qs)}
            << QStringList{u"f-x"_qs, u"f-x-2"_qs, u"f-x-3"_qs};
        QTest::newRow("same address")
            << QList{entry(u"https://a.example/x"_qs), entry(u"https://a.example/x"_qs)}
            << QStringList{u"f-x"_qs};
        QTest::newRow("query") << QList{entry(u"https://a.example/item?id=7"_qs)}
                               << QStringList{u"f-item-id-7"_qs};
        QTest::newRow("title") << QList{entry(u"https://a.example/"_qs, u"Kite 2"_qs),
                                        entry({}, u"Kite 3"_qs), entry({}, u"Kite 3"_qs)}
                               << QStringList{u"f-kite-2"_qs, u"f-kite-3"_qs, u"f-kite-3-2"_qs};
        QTest::newRow("nothing in Latin letters")
            << QList{entry(u"https://a.example/纸鸢"_qs, u"纸鸢"_qs)}
            << QStringList{u"f-6edae328"_qs};
    }

    void namesEverySignalOnce()
    {
        QFETCH(QList<FeedEntry>, entries);
        const Feed feed{.file = u"f.xml"_qs, .title = {}, .address = {}, .entries = entries};
        const auto pack = InformationPackSync::parse(DraftPack::of({feed}, now));
        QVERIFY(pack);
        QStringList ids;
        for (const auto& signal : pack->signals) {
            ids.append(signal.id);
        }
        QTEST(ids, "ids");
        QCOMPARE(pack->checkedEntryCount, entries.size());
    }

private:
    /// 2026-08-26T20:00:00Z, the next day at UTC+8.
    static constexpr qint64 now = 1'787'774'400'000;
};

TEST_SUBJECT(DraftPackTest)
#include "DraftPackTest.moc"
