// SPDX-License-Identifier: Apache-2.0

#include "NextEdition.h"
#include "InformationPackCoding.h"
#include "InformationPackSync.h"
#include "SeedFolder.h"
#include "Subject.h"

#include <QTest>

#include <algorithm>

class NextEditionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void carriesTheHistoryOn_data()
    {
        QTest::addColumn<QJsonArray>("days");
        QTest::addColumn<QStringList>("dates");

        QTest::newRow("a new day")
            << QJsonArray{day(u"2026-08-28"_qs)}
            << QStringList{u"2026-08-22"_qs, u"2026-08-23"_qs, u"2026-08-24"_qs, u"2026-08-25"_qs,
                           u"2026-08-26"_qs, u"2026-08-27"_qs, u"2026-08-28"_qs};
        QTest::newRow("the last day again")
            << QJsonArray{day(u"2026-08-26"_qs), day(u"2026-08-27"_qs)}
            << QStringList{u"2026-08-22"_qs, u"2026-08-23"_qs, u"2026-08-24"_qs,
                           u"2026-08-25"_qs, u"2026-08-26"_qs, u"2026-08-27"_qs};
        QTest::newRow("no day") << QJsonArray() << QStringList{u"2026-08-22"_qs, u"2026-08-23"_qs,
                                                               u"2026-08-24"_qs, u"2026-08-25"_qs,
                                                               u"2026-08-26"_qs, u"2026-08-27"_qs};
    }

    void carriesTheHistoryOn()
    {
        QFETCH(QJsonArray, days);
        const EditionFolder next = SeedFolder::withPack(m_seed, {{u"selectionHistory"_qs, days}});
        const auto pack = packOf(NextEdition::after(m_seed, next, now));
        QStringList dates;
        for (const auto& selectionDay : pack.selectionDays) {
            dates.append(selectionDay.date);
        }
        QTEST(dates, "dates");
        QCOMPARE(pack.selectionDays.last().totalShown, 22);
    }

    void advancesTheTime_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("asOf");

        const QString nowStamp = u"2026-08-28T04:00:00.000Z"_qs;
        QTest::newRow("earlier") << u"2026-08-27T00:00:00.000Z"_qs << nowStamp;
        QTest::newRow("same") << u"2026-08-27T04:01:03.784Z"_qs << nowStamp;
        QTest::newRow("later") << u"2026-08-27T04:01:03.785Z"_qs << u"2026-08-27T04:01:03.785Z"_qs;
        QTest::newRow("after now")
            << u"2026-08-28T05:00:00.000Z"_qs << u"2026-08-28T05:00:00.000Z"_qs;
    }

    void advancesTheTime()
    {
        QFETCH(QString, written);
        const EditionFolder next = SeedFolder::withPack(m_seed, {{u"asOf"_qs, written}});
        QTEST(packOf(NextEdition::after(m_seed, next, now)).asOf, "asOf");
    }

    void retiresWhatLeft()
    {
        QJsonArray signalList = SeedFolder::packSignals(m_seed);
        const QString left = signalList.takeAt(0)[u"id"].toString();
        const QJsonValue back = m_seed.retired->root.value(u"signals").toArray().at(0);
        signalList.append(back);
        const auto edition = NextEdition::after(
            m_seed, SeedFolder::withPack(m_seed, {{u"signals"_qs, signalList}}), now);
        QVERIFY(edition);
        const auto retired = InformationPackCoding::decodeRetired(edition->retired);
        QVERIFY(retired);
        QCOMPARE(retired->front().id, left);
        QCOMPARE(retired->size(), m_seed.retired->root.value(u"signals").toArray().size());
        QVERIFY(std::ranges::none_of(*retired, [&](const InformationSignal& signal) {
            return signal.id == back[u"id"].toString();
        }));
        QCOMPARE(edition->leftCount, 1);
    }

    void startsAListWhereThereWasNone()
    {
        EditionFolder published = m_seed;
        published.retired.reset();
        const auto edition = NextEdition::after(published, m_seed, now);
        QVERIFY(edition);
        QCOMPARE(InformationPackCoding::decodeRetired(edition->retired),
                 QList<InformationSignal>());
    }

    void refusesWhatCannotFollow_data()
    {
        QTest::addColumn<EditionFolder>("published");
        QTest::addColumn<EditionFolder>("next");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("text");

        EditionFolder empty = m_seed;
        empty.pack.reset();
        EditionFolder undecodedList = m_seed;
        undecodedList.retired->bytes = "{}";
        const EditionFolder noPack = SeedFolder::withPack(m_seed, {{u"signals"_qs, QJsonArray()}});
        const EditionFolder future =
            SeedFolder::withPack(m_seed, {{u"asOf"_qs, u"2026-08-28T04:00:00.000Z"_qs}});
        QJsonArray twice = SeedFolder::packSignals(m_seed);
        twice.append(twice.first());

        const QString noFile = u"没有 information-pack.json：请放进这个文件夹"_qs;
        const QString undecoded = u"程序不收这个信息包：请先用 check 检查"_qs;
        QTest::newRow("nothing published") << empty << m_seed << QString() << noFile;
        QTest::newRow("nothing new") << m_seed << empty << QString() << noFile;
        QTest::newRow("no pack published") << noPack << m_seed << u"$"_qs << undecoded;
        QTest::newRow("no pack new") << m_seed << noPack << u"$"_qs << undecoded;
        QTest::newRow("no retired list") << undecodedList << m_seed << u"$"_qs
                                         << u"程序不收这份已退出名单：请先用 check 检查"_qs;
        QTest::newRow("same time")
            << future << m_seed << u"$.asOf"_qs
            << u"不晚于已发布的 2026-08-28T04:00:00.000Z：请核对这台机器的时钟，或者写一个更晚的时间"_qs;
        QTest::newRow("repeated id")
            << m_seed << SeedFolder::withPack(m_seed, {{u"signals"_qs, twice}})
            << u"$.signals[22].id"_qs
            << u"编号“product-hunt-chatcut-ai-video-editor”已经用过：每张卡片的编号只能出现一次"_qs;
    }

    void refusesWhatCannotFollow()
    {
        QFETCH(EditionFolder, published);
        QFETCH(EditionFolder, next);
        const auto edition = NextEdition::after(published, next, now);
        QVERIFY(!edition);
        QTEST(edition.error().place, "place");
        QTEST(edition.error().text, "text");
    }

private:
    /// 2026-08-28T04:00:00Z.
    static constexpr qint64 now = 1'787'889'600'000;

    static QJsonObject day(const QString& date)
    {
        return {{u"date"_qs, date},
                {u"focusSignalIds"_qs, QJsonArray{u"github-trending-uv"_qs}},
                {u"totalShown"_qs, 0}};
    }

    static InformationPackSync::Snapshot packOf(const std::expected<NextEdition, Finding>& edition)
    {
        return InformationPackSync::parse(edition.value().pack).value();
    }

    const EditionFolder m_seed = SeedFolder::read();
};

TEST_SUBJECT(NextEditionTest)
#include "NextEditionTest.moc"
