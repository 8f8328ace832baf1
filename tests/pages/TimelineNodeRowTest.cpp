// SPDX-License-Identifier: Apache-2.0

#include "TimelineNodeRow.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

class TimelineNodeRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensWithThePresentState()
    {
        const auto rows = TimelineNodeRow::timelineOf(sampleSignal(u"a"_qs));

        QCOMPARE(rows.size(), 1);
        QVERIFY(rows.first().isNow);
        QVERIFY(rows.first().isLast);
        QCOMPARE(rows.first().date, u"现在"_qs);
        QCOMPARE(rows.first().summary, u"Summary of a"_qs);
        QCOMPARE(rows.first().source, QString());
    }

    void keepsTheEventsInStoredOrder()
    {
        auto signal = sampleSignal(u"a"_qs);
        signal.timeline = {
            {u"8 月 25 日"_qs, u"2026-08-25T00:00:00Z"_qs, u"首次出现"_qs, u"榜单"_qs},
            {u"2026-08-27"_qs, u"2026-08-27T00:00:00Z"_qs, u"复核"_qs, u"编辑"_qs}};

        const auto rows = TimelineNodeRow::timelineOf(signal);

        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(1).date, u"8 月 25 日"_qs);
        QCOMPARE(rows.at(1).summary, u"首次出现"_qs);
        QCOMPARE(rows.at(1).source, u"榜单"_qs);
        QVERIFY(!rows.at(1).isNow);
        QCOMPARE(rows.at(2).date, u"2026-08-27"_qs);
        QVERIFY(!rows.at(1).isLast);
        QVERIFY(rows.at(2).isLast);
    }

    void aScreenReaderSaysAllOfANode()
    {
        auto signal = sampleSignal(u"a"_qs);
        signal.timeline = {
            {u"8 月 25 日"_qs, u"2026-08-25T00:00:00Z"_qs, u"首次出现。"_qs, u"榜单"_qs}};

        const auto rows = TimelineNodeRow::timelineOf(signal);

        QCOMPARE(rows.at(0).name(), u"现在：Summary of a"_qs);
        QCOMPARE(rows.at(1).name(), u"8 月 25 日：首次出现。（榜单）"_qs);
    }
};

TEST_SUBJECT(TimelineNodeRowTest)
#include "TimelineNodeRowTest.moc"
