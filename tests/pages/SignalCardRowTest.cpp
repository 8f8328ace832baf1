// SPDX-License-Identifier: Apache-2.0

#include "SignalCardRow.h"
#include "LaneColor.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

namespace {

/// 2026-09-01T05:00:00Z, five hours after the sample was verified.
constexpr double fiveHoursLater = 1788238800;

SignalCardRow rowOf(const InformationSignal& signal, SignalCardRow::Standing standing = {})
{
    return SignalCardRow::from(signal, standing, signal.relativeObservedLabel(fiveHoursLater));
}

InformationSignal blockedSignal()
{
    auto signal = sampleSignal(u"a"_qs);
    signal.originalURL = u"https://news.ycombinator.com/item?id=1"_qs;
    return signal;
}

} // namespace

class SignalCardRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsASignalAsItIs()
    {
        const auto row = rowOf(sampleSignal(u"a"_qs));

        QCOMPARE(row.signalId, u"a"_qs);
        QCOMPARE(row.laneColor, laneColor(InformationLane::ProductRadar));
        QCOMPARE(row.laneName, u"产品雷达"_qs);
        QCOMPARE(row.title, u"Title of a"_qs);
        QCOMPARE(row.why, u"Why a"_qs);
        QCOMPARE(row.caveat, u"Caveat of a"_qs);
        QCOMPARE(row.originalAddress, u"https://origin.example/a"_qs);
        QCOMPARE(row.originalName, u"看原文：Title of a"_qs);
        QCOMPARE(row.reduceName, u"这类少看：产品雷达"_qs);
    }

    void aSourceThatLeadsNowhereIsNamedAsItReads()
    {
        auto signal = sampleSignal(u"a"_qs);
        signal.originalURL = u"javascript:alert(1)"_qs;

        const auto row = rowOf(signal);

        QCOMPARE(row.originalAddress, QString());
        QCOMPARE(row.originalName, row.sourceLine);
    }

    void tagsTheKind_data()
    {
        QTest::addColumn<InformationSignalKind>("kind");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<bool>("isUpdate");

        QTest::newRow("new") << InformationSignalKind::New << u"新出现"_qs << false;
        QTest::newRow("update") << InformationSignalKind::Update << u"重要更新"_qs << true;
    }

    void tagsTheKind()
    {
        QFETCH(InformationSignalKind, kind);
        auto signal = sampleSignal(u"a"_qs);
        signal.kind = kind;

        const auto row = rowOf(signal);

        QTEST(row.kindTag, "tag");
        QTEST(row.isUpdate, "isUpdate");
    }

    void tellsWhenItWasVerified_data()
    {
        QTest::addColumn<QString>("observedAt");
        QTest::addColumn<QString>("label");

        QTest::newRow("hours ago") << u"2026-09-01T00:00:00Z"_qs << u"5 小时前核验"_qs;
        QTest::newRow("long ago") << u"2026-08-25T23:30:00.250Z"_qs << u"8月26日核验"_qs;
        QTest::newRow("in the future") << u"2026-09-03T00:00:00Z"_qs << u"9月3日核验"_qs;
        QTest::newRow("unreadable") << u"昨天"_qs << u"昨天核验"_qs;
    }

    void tellsWhenItWasVerified()
    {
        QFETCH(QString, observedAt);
        auto signal = sampleSignal(u"a"_qs);
        signal.observedAt = observedAt;

        QTEST(rowOf(signal).timeLabel, "label");
    }

    void warnsOfAnOriginalThatIsHardToReach_data()
    {
        QTest::addColumn<QString>("original");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<bool>("blocked");

        QTest::newRow("open") << u"https://origin.example/a"_qs << QString() << false;
        QTest::newRow("spotty") << u"https://github.com/a/b"_qs << u"访问可能不稳定"_qs << false;
        QTest::newRow("blocked") << u"https://x.com/a"_qs << u"国内访问受限"_qs << true;
    }

    void warnsOfAnOriginalThatIsHardToReach()
    {
        QFETCH(QString, original);
        auto signal = sampleSignal(u"a"_qs);
        signal.originalURL = original;

        const auto row = rowOf(signal);

        QTEST(row.reachabilityTag, "tag");
        QTEST(row.blocked, "blocked");
        QVERIFY(!row.hasAlternate);
    }

    void offersAnotherOriginal()
    {
        auto signal = blockedSignal();
        signal.relatedSources = {{u"讨论"_qs, u"https://x.com/a"_qs},
                                 {u"官网"_qs, u"https://origin.example/a"_qs}};

        const auto row = rowOf(signal);

        QVERIFY(row.hasAlternate);
        QCOMPARE(row.alternateAddress, u"https://origin.example/a"_qs);
    }

    void hasNoAddressWhereNothingMayBeOpened()
    {
        auto signal = blockedSignal();
        signal.relatedSources = {{u"文件"_qs, u"ftp://origin.example/a"_qs}};

        const auto row = rowOf(signal);

        QVERIFY(row.hasAlternate);
        QCOMPARE(row.alternateAddress, QString());

        signal.originalURL = u"javascript:alert(1)"_qs;
        QCOMPARE(rowOf(signal).originalAddress, QString());
    }

    void namesTheSourceAndTheDay_data()
    {
        QTest::addColumn<std::optional<QString>>("publishedAt");
        QTest::addColumn<QString>("line");

        QTest::newRow("published") << std::optional(u"2026-08-22T13:16:05.000Z"_qs)
                                   << u"Source of a · 2026-08-22T13:16:05.000Z"_qs;
        QTest::newRow("observed") << std::optional<QString>() << u"Source of a · 9月1日观察"_qs;
    }

    void namesTheSourceAndTheDay()
    {
        QFETCH(std::optional<QString>, publishedAt);
        auto signal = sampleSignal(u"a"_qs);
        signal.publishedAt = publishedAt;

        QTEST(rowOf(signal).sourceLine, "line");
    }

    void tellsWhatChanged()
    {
        auto signal = sampleSignal(u"a"_qs);
        QVERIFY(!rowOf(signal).hasChange);

        signal.updateSummary = u"新增离线模式。"_qs;
        QVERIFY(rowOf(signal).hasChange);
        QCOMPARE(rowOf(signal).change, u"新增离线模式。"_qs);
    }

    void namesTheKeepButtonByWhatItDoes()
    {
        const auto signal = sampleSignal(u"a"_qs);

        QVERIFY(!rowOf(signal).kept);
        QCOMPARE(rowOf(signal).keepName, u"收下并持续更新：Title of a"_qs);
        QVERIFY(rowOf(signal, {.kept = true, .seen = false}).kept);
        QCOMPARE(rowOf(signal, {.kept = true, .seen = false}).keepName,
                 u"从工作台移除并停止更新：Title of a"_qs);
    }

    void describesItsStateInOneSentence()
    {
        QCOMPARE(rowOf(sampleSignal(u"a"_qs)).description,
                 u"新出现，产品雷达，5 小时前核验\n为什么值得看：Why a\n最大限制：Caveat of a"_qs);

        auto signal = blockedSignal();
        signal.kind = InformationSignalKind::Update;
        const auto row = rowOf(signal, {.kept = false, .seen = true});

        QVERIFY(row.seen);
        QVERIFY(row.description.startsWith(
            u"重要更新，产品雷达，5 小时前核验，国内访问受限，已看过\n"_qs));
    }
};

TEST_SUBJECT(SignalCardRowTest)
#include "SignalCardRowTest.moc"
