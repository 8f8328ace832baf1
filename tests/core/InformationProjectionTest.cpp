// SPDX-License-Identifier: Apache-2.0

#include "InformationProjection.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

using namespace std::chrono_literals;

namespace {

const QString asOf = u"2026-09-02T04:00:00Z"_qs;

InformationSignal news(const QString& id, const QString& observedAt)
{
    InformationSignal signal = sampleSignal(id);
    signal.observedAt = observedAt;
    return signal;
}

InformationSignal update(const QString& id, const QString& observedAt)
{
    InformationSignal signal = news(id, observedAt);
    signal.kind = InformationSignalKind::Update;
    return signal;
}

InformationSignal version(const QString& id, const QString& target, const QString& observedAt)
{
    InformationSignal signal = sampleSignal(id, target);
    signal.observedAt = observedAt;
    return signal;
}

QList<InformationSignal> oneOfEachLane()
{
    QList<InformationSignal> signals;
    for (const auto& entry : vocabulary<InformationLane>) {
        InformationSignal signal = sampleSignal(entry.token);
        signal.lane = entry.value;
        signals.append(signal);
    }
    return signals;
}

// Two updates, two of fresh news and three of older news at `asOf`.
QList<InformationSignal> mixedPool()
{
    return {update(u"u1"_qs, u"2026-09-02T03:00:00Z"_qs),
            news(u"o1"_qs, u"2026-08-20T00:00:00Z"_qs),
            news(u"r1"_qs, u"2026-09-02T01:00:00Z"_qs),
            update(u"u2"_qs, u"2026-08-01T00:00:00Z"_qs),
            news(u"o2"_qs, u"2026-09-01T03:59:59.999Z"_qs),
            news(u"r2"_qs, u"2026-09-01T04:00:00Z"_qs),
            news(u"o3"_qs, u"unknown"_qs)};
}

SelectionDay featured(const QList<QString>& ids)
{
    return {u"2026-09-02"_qs, ids, 7};
}

std::chrono::sys_seconds hour(int number)
{
    return std::chrono::sys_seconds(std::chrono::hours(number));
}

} // namespace

class InformationProjectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versionKeysNameIdAndObservation()
    {
        QCOMPARE(InformationProjection::versionKey(news(u"s1"_qs, u"2025-01-02T03:04:05Z"_qs)),
                 u"s1@2025-01-02T03:04:05Z"_qs);
    }

    void aHiddenVersionHidesOnlyItself()
    {
        InformationWorkspace workspace;
        workspace.hidden = {u"s1@T1"_qs};

        QCOMPARE(InformationProjection::today({news(u"s1"_qs, u"T1"_qs)}, workspace), {});
        QCOMPARE(idsOf(InformationProjection::today({news(u"s1"_qs, u"T2"_qs)}, workspace)),
                 QStringList{u"s1"_qs});
    }

    void aHiddenIdHidesEveryVersion()
    {
        InformationWorkspace workspace;
        workspace.hidden = {u"s1"_qs};

        const QList<InformationSignal> signals{news(u"s1"_qs, u"T1"_qs), news(u"s1"_qs, u"T2"_qs),
                                               news(u"s10"_qs, u"T1"_qs)};
        QCOMPARE(idsOf(InformationProjection::today(signals, workspace)), QStringList{u"s10"_qs});
    }

    void reducedLanesMoveToTheEnd()
    {
        InformationWorkspace workspace;
        workspace.reducedLanes = {InformationLane::Opportunity, InformationLane::OpenSourceGrowth};

        QCOMPARE(idsOf(InformationProjection::today(oneOfEachLane(), workspace)),
                 (QStringList{u"productRadar"_qs, u"workflow"_qs, u"founderStory"_qs,
                              u"platformShift"_qs, u"openSourceGrowth"_qs, u"opportunity"_qs}));
    }

    void reducingEveryLaneKeepsTheOrder()
    {
        InformationWorkspace workspace;
        for (const auto& entry : vocabulary<InformationLane>) {
            workspace.reducedLanes.append(entry.value);
        }

        QCOMPARE(InformationProjection::today(oneOfEachLane(), workspace), oneOfEachLane());
    }

    void focusPutsFreshNewsBeforeUpdatesAndOlderNews()
    {
        // Day 20698 since 1970 starts the three older news at the second one.
        QCOMPARE(
            focusIds(mixedPool(), 7, asOf, {}),
            (QStringList{u"r1"_qs, u"r2"_qs, u"u1"_qs, u"u2"_qs, u"o2"_qs, u"o3"_qs, u"o1"_qs}));
    }

    void focusIsCutAtItsLimit_data()
    {
        QTest::addColumn<int>("limit");
        QTest::addColumn<QStringList>("focus");

        QTest::newRow("negative") << -1 << QStringList();
        QTest::newRow("none") << 0 << QStringList();
        QTest::newRow("one") << 1 << QStringList{u"r1"_qs};
        QTest::newRow("usual") << 3 << QStringList{u"r1"_qs, u"r2"_qs, u"u1"_qs};
    }

    void focusIsCutAtItsLimit()
    {
        QFETCH(int, limit);
        QFETCH(QStringList, focus);

        QCOMPARE(focusIds(mixedPool(), limit, asOf, {}), focus);
    }

    void aLimitBeyondThePoolTakesAll() { QCOMPARE(focusIds(mixedPool(), 100, asOf, {}).size(), 7); }

    void olderNewsTakesTurns_data()
    {
        QTest::addColumn<QString>("stamp");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("first");

        QTest::newRow("day 10 of four") << u"1970-01-11T00:00:00Z"_qs << 4 << u"n2"_qs;
        QTest::newRow("day 10 of five") << u"1970-01-11T00:00:00Z"_qs << 5 << u"n0"_qs;
        QTest::newRow("end of day 10") << u"1970-01-11T23:59:59Z"_qs << 4 << u"n2"_qs;
        QTest::newRow("day 11 of four") << u"1970-01-12T00:00:00Z"_qs << 4 << u"n3"_qs;
        QTest::newRow("alone") << u"1970-01-12T00:00:00Z"_qs << 1 << u"n0"_qs;
        QTest::newRow("day -1 of four") << u"1969-12-31T00:00:00Z"_qs << 4 << u"n3"_qs;
        QTest::newRow("day -4 of four") << u"1969-12-28T00:00:00Z"_qs << 4 << u"n0"_qs;
    }

    void olderNewsTakesTurns()
    {
        QFETCH(QString, stamp);
        QFETCH(int, count);
        QFETCH(QString, first);

        QList<InformationSignal> signals;
        for (int number = 0; number < count; ++number) {
            signals.append(news(u'n' + QString::number(number), u"1960-01-01T00:00:00Z"_qs));
        }

        QCOMPARE(focusIds(signals, 1, stamp, {}), QStringList{first});
    }

    void newsOfAnUnknownTimeIsAsOldAsTheEpoch_data()
    {
        QTest::addColumn<QString>("stamp");
        QTest::addColumn<QString>("first");

        QTest::newRow("a day after") << u"1970-01-02T00:00:00Z"_qs << u"news"_qs;
        QTest::newRow("a moment later") << u"1970-01-02T00:00:00.001Z"_qs << u"update"_qs;
    }

    void newsOfAnUnknownTimeIsAsOldAsTheEpoch()
    {
        QFETCH(QString, stamp);
        QFETCH(QString, first);

        const QList<InformationSignal> signals{update(u"update"_qs, u"1970-01-01T00:00:00Z"_qs),
                                               news(u"news"_qs, u"unknown"_qs)};
        QCOMPARE(focusIds(signals, 1, stamp, {}), QStringList{first});
    }

    void aStampThatDoesNotReadPutsUpdatesFirst()
    {
        const QStringList wanted{u"u1"_qs, u"u2"_qs, u"o1"_qs, u"r1"_qs,
                                 u"o2"_qs, u"r2"_qs, u"o3"_qs};

        QCOMPARE(focusIds(mixedPool(), 7, u"not a time"_qs, featured({u"u1"_qs, u"o1"_qs})),
                 wanted);
        QCOMPARE(focusIds(mixedPool(), 3, u"not a time"_qs, {}), wanted.first(3));
    }

    void whatWasFeaturedThatDayComesLast()
    {
        QCOMPARE(focusIds(mixedPool(), 3, asOf, featured({u"r1"_qs, u"u1"_qs, u"gone"_qs})),
                 (QStringList{u"r2"_qs, u"u2"_qs, u"o2"_qs}));
        QCOMPARE(focusIds(mixedPool(), 3, asOf,
                          featured({u"r1"_qs, u"u1"_qs, u"u2"_qs, u"o1"_qs, u"o2"_qs, u"o3"_qs})),
                 (QStringList{u"r2"_qs, u"r1"_qs, u"u1"_qs}));
    }

    void whenAllWereFeaturedTheFirstCandidatesAre()
    {
        QCOMPARE(focusIds(mixedPool(), 3, asOf, featured(idsOf(mixedPool()))),
                 (QStringList{u"r1"_qs, u"r2"_qs, u"u1"_qs}));
    }

    void onlyTheFirstEntryOfTheDayCounts()
    {
        const QList<SelectionDay> history{{u"2026-09-01"_qs, {u"r2"_qs}, 7},
                                          {u"2026-09-02"_qs, {u"r1"_qs}, 7},
                                          {u"2026-09-02"_qs, {u"u1"_qs}, 7}};

        QCOMPARE(idsOf(InformationProjection::focusedToday(mixedPool(), {}, 3, asOf, history)),
                 (QStringList{u"r2"_qs, u"u1"_qs, u"u2"_qs}));
    }

    void theFeaturedDayIsTheDayAtUtcPlus8()
    {
        const QList<SelectionDay> history{featured({u"r1"_qs})};
        const QList<InformationSignal> signals{news(u"r1"_qs, u"2026-09-02T01:00:00Z"_qs),
                                               news(u"r2"_qs, u"2026-09-02T01:00:00Z"_qs)};

        QCOMPARE(idsOf(InformationProjection::focusedToday(signals, {}, 1,
                                                           u"2026-09-02T15:59:59Z"_qs, history)),
                 QStringList{u"r2"_qs});
        QCOMPARE(idsOf(InformationProjection::focusedToday(signals, {}, 1,
                                                           u"2026-09-02T16:00:00Z"_qs, history)),
                 QStringList{u"r1"_qs});
    }

    void hiddenSignalsAreNeitherFocusedNorRemaining()
    {
        InformationWorkspace workspace;
        workspace.hidden = {u"r1"_qs};

        QCOMPARE(idsOf(InformationProjection::focusedToday(mixedPool(), workspace, 2, asOf, {})),
                 (QStringList{u"r2"_qs, u"u1"_qs}));
        QVERIFY(!idsOf(InformationProjection::remainingToday(mixedPool(), workspace, 2, asOf, {}))
                     .contains(u"r1"_qs));
    }

    void remainingIsTodayWithoutItsFocus()
    {
        InformationWorkspace workspace;
        workspace.reducedLanes = {InformationLane::ProductRadar};

        QCOMPARE(idsOf(InformationProjection::remainingToday(mixedPool(), workspace, 3, asOf, {})),
                 (QStringList{u"o1"_qs, u"u2"_qs, u"o2"_qs, u"o3"_qs}));
    }

    void withoutALimitAllRemains()
    {
        for (const qsizetype limit : {0, -3}) {
            QCOMPARE(InformationProjection::remainingToday(mixedPool(), {}, limit, asOf, {}),
                     mixedPool());
        }
    }

    void keptSignalsComeLastKeptFirst()
    {
        const QList<InformationSignal> signals{sampleSignal(u"a"_qs), sampleSignal(u"b"_qs),
                                               sampleSignal(u"c"_qs), sampleSignal(u"d"_qs)};
        InformationWorkspace workspace;
        workspace.setKept(true, signals.at(2), hour(1));
        workspace.setKept(true, signals.at(0), hour(1));
        workspace.setKept(true, signals.at(1), hour(2));

        QCOMPARE(idsOf(InformationProjection::kept(signals, workspace)),
                 (QStringList{u"b"_qs, u"a"_qs, u"c"_qs}));
    }

    void equalTimesOrderByCodePoint()
    {
        const QList<InformationSignal> signals{sampleSignal(u"\U0001F600"_qs),
                                               sampleSignal(u"\uFFFD"_qs)};
        InformationWorkspace workspace;
        workspace.setKept(true, signals.at(0), hour(1));
        workspace.setKept(true, signals.at(1), hour(1));

        QCOMPARE(idsOf(InformationProjection::kept(signals, workspace)),
                 (QStringList{u"\uFFFD"_qs, u"\U0001F600"_qs}));
    }

    void aFollowedTargetShowsItsNewestVersionOnce()
    {
        const QList<InformationSignal> signals{
            version(u"old"_qs, u"T"_qs, u"2026-09-01T00:00:00Z"_qs),
            version(u"new"_qs, u"T"_qs, u"2026-09-02T00:00:00Z"_qs),
            version(u"same"_qs, u"T"_qs, u"2026-09-02T00:00:00Z"_qs)};
        InformationWorkspace workspace;
        workspace.setKept(true, signals.at(0), hour(1));
        workspace.setKept(true, signals.at(2), hour(2));

        QCOMPARE(idsOf(InformationProjection::kept(signals, workspace)), QStringList{u"new"_qs});
    }

    void stampsOfVersionsCompareAsText()
    {
        const QList<InformationSignal> signals{
            version(u"milliseconds"_qs, u"T"_qs, u"2026-09-02T00:00:00.000Z"_qs),
            version(u"seconds"_qs, u"T"_qs, u"2026-09-02T00:00:00Z"_qs)};
        InformationWorkspace workspace;
        workspace.following = {u"T"_qs};

        QCOMPARE(idsOf(InformationProjection::following(signals, workspace)),
                 QStringList{u"seconds"_qs});
    }

    void aSavedSignalThatIsNoLongerFollowedShowsItself()
    {
        const QList<InformationSignal> signals{
            version(u"old"_qs, u"T"_qs, u"2026-09-01T00:00:00Z"_qs),
            version(u"new"_qs, u"T"_qs, u"2026-09-02T00:00:00Z"_qs)};
        InformationWorkspace workspace;
        workspace.setKept(true, signals.at(0), hour(1));
        workspace.following.clear();

        QCOMPARE(idsOf(InformationProjection::kept(signals, workspace)), QStringList{u"old"_qs});
    }

    void aSavedSignalThatLeftIsShownOnlyThroughItsTarget()
    {
        const InformationSignal gone = version(u"gone"_qs, u"T"_qs, u"2026-09-01T00:00:00Z"_qs);
        const InformationSignal successor =
            version(u"here"_qs, u"T"_qs, u"2026-09-02T00:00:00Z"_qs);
        InformationWorkspace workspace;
        workspace.setKept(true, gone, hour(1));

        QCOMPARE(InformationProjection::kept({}, workspace), {});
        QCOMPARE(idsOf(InformationProjection::kept({successor}, workspace)),
                 QStringList{u"here"_qs});
    }

    void followedTargetsWithoutASavedSignalComeAfterThoseWith()
    {
        const QList<InformationSignal> signals{sampleSignal(u"a"_qs), sampleSignal(u"b"_qs),
                                               sampleSignal(u"c"_qs)};
        InformationWorkspace workspace;
        workspace.following = {u"target:c"_qs, u"target:none"_qs, u"target:a"_qs};
        workspace.setKept(true, signals.at(1), hour(1));

        QCOMPARE(idsOf(InformationProjection::kept(signals, workspace)),
                 (QStringList{u"b"_qs, u"c"_qs, u"a"_qs}));
        QCOMPARE(idsOf(InformationProjection::following(signals, workspace)),
                 (QStringList{u"c"_qs, u"a"_qs, u"b"_qs}));
    }

private:
    static QStringList focusIds(const QList<InformationSignal>& signals, qsizetype limit,
                                const QString& stamp, const SelectionDay& day)
    {
        return idsOf(InformationProjection::focusedToday(signals, {}, limit, stamp, {day}));
    }
};

TEST_SUBJECT(InformationProjectionTest)
#include "InformationProjectionTest.moc"
