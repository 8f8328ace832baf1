// SPDX-License-Identifier: Apache-2.0

#include "WeeklyDigestLabels.h"
#include "Subject.h"

#include <QTest>

namespace {

InformationSignal signalIn(const QString& id, InformationLane lane)
{
    InformationSignal signal{};
    signal.id = id;
    signal.lane = lane;
    return signal;
}

} // namespace

class WeeklyDigestLabelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void days_data()
    {
        QTest::addColumn<QString>("day");
        QTest::addColumn<QString>("dayLabel");
        QTest::addColumn<QString>("shortRange");

        const auto row = [](const QString& day, const QString& dayLabel,
                            const QString& shortRange) {
            QTest::newRow(qPrintable(day)) << day << dayLabel << shortRange;
        };
        row(u"2026-08-27"_qs, u"8月27日 星期四"_qs, u"8月27日"_qs);
        row(u"2026-09-06"_qs, u"9月6日 星期日"_qs, u"9月6日"_qs);
        row(u"2025-01-05"_qs, u"1月5日 星期日"_qs, u"1月5日"_qs);
        row(u"10000-01-02"_qs, u"10000-01-02"_qs, u"1月2日"_qs);
        row(u"2025-13-01"_qs, u"2025-13-01"_qs, u"13月1日"_qs);
        row(u"2026-8-7"_qs, u"2026-8-7"_qs, u"8月7日"_qs);
        row(u"2026-02-30"_qs, u"3月2日 星期一"_qs, u"2月30日"_qs);
        for (const QString& unread : {u""_qs, u"-"_qs, u"bad"_qs, u"2026-08"_qs, u"2026-08-xx"_qs,
                                      u"2026-08-27-1"_qs, u"2026-０8-27"_qs}) {
            row(unread, unread, unread);
        }
    }

    void days()
    {
        QFETCH(QString, day);

        QTEST(WeeklyDigestLabels::dayLabel(day), "dayLabel");
        QTEST(WeeklyDigestLabels::shortRange(day), "shortRange");
    }

    void rangeJoinsBothEnds()
    {
        QCOMPARE(WeeklyDigestLabels::range(u"2024-12-30"_qs, u"2025-01-05"_qs),
                 u"12月30日–1月5日"_qs);
        QCOMPARE(WeeklyDigestLabels::range(u"bad"_qs, u"2025-01-05"_qs), u"bad–1月5日"_qs);
    }

    void badgeTellsThePresentWeek()
    {
        QCOMPARE(WeeklyDigestLabels::badge(true), u"本周 · 进行中"_qs);
        QCOMPARE(WeeklyDigestLabels::badge(false), u"已定格"_qs);
    }

    void summaryCountsFeaturedSignalsAndTheirLanes()
    {
        const QHash<QString, InformationSignal> index{
            {u"a"_qs, signalIn(u"a"_qs, InformationLane::Workflow)},
            {u"b"_qs, signalIn(u"b"_qs, InformationLane::Workflow)},
            {u"c"_qs, signalIn(u"c"_qs, InformationLane::PlatformShift)},
        };
        const WeeklyDigest::Week week{
            u"2026-W35"_qs,
            u"2026-08-24"_qs,
            u"2026-08-30"_qs,
            {{u"2026-08-24"_qs, {u"a"_qs, u"b"_qs, u"gone"_qs}, 22},
             {u"2026-08-25"_qs, {u"c"_qs, u"a"_qs}, 20}},
        };

        QCOMPARE(WeeklyDigestLabels::summary(week, index), u"2 天 · 5 条焦点 · 覆盖 2 条泳道"_qs);
        QCOMPARE(WeeklyDigestLabels::summary(week, {}), u"2 天 · 5 条焦点 · 覆盖 0 条泳道"_qs);
    }
};

TEST_SUBJECT(WeeklyDigestLabelsTest)
#include "WeeklyDigestLabelsTest.moc"
