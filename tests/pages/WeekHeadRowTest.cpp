// SPDX-License-Identifier: Apache-2.0

#include "WeekHeadRow.h"
#include "InformationSignalIndex.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

namespace {

QHash<QString, InformationSignal> sampleIndex()
{
    auto tool = sampleSignal(u"tool"_qs);
    tool.lane = InformationLane::Workflow;
    auto shift = sampleSignal(u"shift"_qs);
    shift.lane = InformationLane::PlatformShift;
    return indexById({sampleSignal(u"product"_qs), tool, shift});
}

WeeklyDigest::Week sampleWeek()
{
    return {.weekId = u"2026-W35"_qs,
            .monday = u"2026-08-24"_qs,
            .sunday = u"2026-08-30"_qs,
            .days = {{u"2026-08-24"_qs, {u"tool"_qs, u"gone"_qs}, 17},
                     {u"2026-08-27"_qs, {u"shift"_qs, u"tool"_qs, u"tool"_qs}, 22}}};
}

} // namespace

class WeekHeadRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWeekCountsDaysFocusAndLanes()
    {
        const auto row = WeekHeadRow::from(sampleWeek(), sampleIndex(), std::nullopt);

        QCOMPARE(row.weekId, u"2026-W35"_qs);
        QCOMPARE(row.range, u"8月24日–8月30日"_qs);
        QCOMPARE(row.summary, u"2 天 · 5 条焦点 · 覆盖 2 条泳道"_qs);
    }

    void aWeekOfNothingThatIsStillThereCoversNoLane()
    {
        QCOMPARE(WeekHeadRow::from(sampleWeek(), {}, std::nullopt).summary,
                 u"2 天 · 5 条焦点 · 覆盖 0 条泳道"_qs);
    }

    void theBadgeTellsWhetherTheWeekRuns_data()
    {
        QTest::addColumn<QString>("currentWeekId");
        QTest::addColumn<bool>("running");
        QTest::addColumn<QString>("badge");

        QTest::newRow("the present week") << u"2026-W35"_qs << true << u"本周 · 进行中"_qs;
        QTest::newRow("an earlier week") << u"2026-W36"_qs << false << u"已定格"_qs;
    }

    void theBadgeTellsWhetherTheWeekRuns()
    {
        QFETCH(QString, currentWeekId);

        const auto row = WeekHeadRow::from(sampleWeek(), sampleIndex(), currentWeekId);

        QTEST(row.running, "running");
        QTEST(row.badge, "badge");
    }
};

TEST_SUBJECT(WeekHeadRowTest)
#include "WeekHeadRowTest.moc"
