// SPDX-License-Identifier: Apache-2.0

#include "InformationWorkspace.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::sys_seconds firstTime{1'788'220'800s};
constexpr std::chrono::sys_seconds laterTime = firstTime + 48h;

QList<QString> numbered(const QString& prefix, int count)
{
    QList<QString> texts;
    for (int number = 1; number <= count; ++number) {
        texts.append(prefix + QString::number(number));
    }
    return texts;
}

} // namespace

class InformationWorkspaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsHashByEveryField()
    {
        const std::chrono::sys_seconds at{std::chrono::seconds(1000)};
        const SavedInformation saved{at, u"理由"_qs, u"备注"_qs};
        QCOMPARE(qHash(saved), qHash(SavedInformation{at, u"理由"_qs, u"备注"_qs}));
        QVERIFY(qHash(saved) != qHash(SavedInformation{at, u"理由"_qs, QString()}));

        const CustomInformationSource source{QUuid(), u"一句话"_qs, at};
        QCOMPARE(qHash(source), qHash(CustomInformationSource{QUuid(), u"一句话"_qs, at}));
        QVERIFY(qHash(source) != qHash(CustomInformationSource{QUuid(), u"一句话"_qs,
                                                               at + std::chrono::seconds(1)}));
    }

    void aNewWorkspaceIsEmptyAndCurrent()
    {
        const InformationWorkspace workspace;

        QCOMPARE(workspace.version, 3);
        QVERIFY(workspace.saved.empty());
        QVERIFY(workspace.following.isEmpty());
        QVERIFY(workspace.hidden.isEmpty());
        QVERIFY(workspace.reducedLanes.isEmpty());
        QVERIFY(workspace.customSources.isEmpty());
        QVERIFY(workspace.seenTargets.isEmpty());
    }

    void normalizeKeepsFirstOccurrencesInOrder()
    {
        InformationWorkspace workspace;
        workspace.following = {u"b"_qs, u"a"_qs, u"b"_qs, u"c"_qs, u"a"_qs};
        workspace.hidden = {u"x"_qs, u"x"_qs};
        workspace.reducedLanes = {InformationLane::Workflow, InformationLane::Opportunity,
                                  InformationLane::Workflow};
        workspace.seenTargets = {u"s"_qs, u"S"_qs, u"s"_qs};

        workspace.normalize();

        QCOMPARE(workspace.following, (QList<QString>{u"b"_qs, u"a"_qs, u"c"_qs}));
        QCOMPARE(workspace.hidden, QList<QString>{u"x"_qs});
        QCOMPARE(workspace.reducedLanes,
                 (QList<InformationLane>{InformationLane::Workflow, InformationLane::Opportunity}));
        QCOMPARE(workspace.seenTargets, (QList<QString>{u"s"_qs, u"S"_qs}));
    }

    void normalizeLeavesSavedAndCustomSources()
    {
        const CustomInformationSource source{QUuid::createUuid(), u"https://a.example"_qs,
                                             firstTime};
        InformationWorkspace workspace;
        workspace.saved = {{u"a"_qs, {firstTime, u"why"_qs, u"note"_qs}}};
        workspace.customSources = {source, source};

        const InformationWorkspace before = workspace;
        workspace.normalize();

        QCOMPARE(workspace, before);
    }

    void normalizeKeepsTheLatestSeenTargets()
    {
        InformationWorkspace workspace;
        workspace.seenTargets = numbered(u"t"_qs, 302);

        workspace.normalize();

        QCOMPARE(workspace.seenTargets, numbered(u"t"_qs, 302).sliced(2));
    }

    void repeatedSeenTargetsDoNotPushOthersOut()
    {
        InformationWorkspace workspace;
        workspace.seenTargets = numbered(u"t"_qs, 300) + numbered(u"t"_qs, 300);

        workspace.normalize();

        QCOMPARE(workspace.seenTargets, numbered(u"t"_qs, 300));
    }

    void isNormalizedWhereNormalizingChangesNothing_data()
    {
        QTest::addColumn<InformationWorkspace>("workspace");
        QTest::addColumn<bool>("normalized");

        const auto add = [](const char* name, bool normalized, auto change) {
            InformationWorkspace workspace;
            change(workspace);
            QTest::newRow(name) << workspace << normalized;
        };
        const QList once{u"a"_qs, u"b"_qs};
        const QList twice{u"a"_qs, u"a"_qs};
        add("empty", true, [](auto&) {});
        add("followed", true, [&](auto& workspace) { workspace.following = once; });
        add("followed twice", false, [&](auto& workspace) { workspace.following = twice; });
        add("hidden", true, [&](auto& workspace) { workspace.hidden = once; });
        add("hidden twice", false, [&](auto& workspace) { workspace.hidden = twice; });
        add("reduced", true,
            [](auto& workspace) { workspace.reducedLanes = {InformationLane::Workflow}; });
        add("reduced twice", false, [](auto& workspace) {
            workspace.reducedLanes = {InformationLane::Workflow, InformationLane::Workflow};
        });
        add("seen", true, [](auto& workspace) { workspace.seenTargets = numbered(u"t"_qs, 300); });
        add("seen twice", false, [&](auto& workspace) { workspace.seenTargets = twice; });
        add("seen too much", false,
            [](auto& workspace) { workspace.seenTargets = numbered(u"t"_qs, 301); });
    }

    void isNormalizedWhereNormalizingChangesNothing()
    {
        QFETCH(InformationWorkspace, workspace);
        auto normalized = workspace;
        normalized.normalize();

        QTEST(workspace.isNormalized(), "normalized");
        QCOMPARE(workspace.isNormalized(), workspace == normalized);
    }

    void keepingSavesTheReasonAndFollowsTheTarget()
    {
        const InformationSignal signal = sampleSignal(u"a"_qs);
        InformationWorkspace workspace;

        workspace.setKept(true, signal, firstTime);

        QVERIFY(workspace.keeps(signal));
        QCOMPARE(workspace.saved.at(u"a"_qs),
                 (SavedInformation{firstTime, u"Why a"_qs, QString()}));
        QCOMPARE(workspace.following, QList<QString>{u"target:a"_qs});
    }

    void keepingAgainKeepsTheFirstTimeAndTheNote()
    {
        const InformationSignal signal = sampleSignal(u"a"_qs);
        InformationWorkspace workspace;
        workspace.setKept(true, signal, firstTime);
        workspace.saved.at(u"a"_qs).note = u"note"_qs;
        workspace.following.clear();

        workspace.setKept(true, signal, laterTime);

        QCOMPARE(workspace.saved.at(u"a"_qs),
                 (SavedInformation{firstTime, u"Why a"_qs, u"note"_qs}));
        QCOMPARE(workspace.following, QList<QString>{u"target:a"_qs});
    }

    void aSavedSignalWhoseTargetIsNotFollowedIsNotKept()
    {
        const InformationSignal signal = sampleSignal(u"a"_qs);
        InformationWorkspace workspace;
        workspace.setKept(true, signal, firstTime);
        workspace.following.clear();

        QVERIFY(!workspace.keeps(signal));
    }

    void aFollowedTargetWithoutASavedSignalIsNotKept()
    {
        const InformationSignal signal = sampleSignal(u"a"_qs);
        InformationWorkspace workspace;
        workspace.following = {signal.followTarget.id};

        QVERIFY(!workspace.keeps(signal));
    }

    void unkeepingOneOfTwoSignalsOfATargetUnfollowsBoth()
    {
        const InformationSignal one = sampleSignal(u"a"_qs, u"shared"_qs);
        const InformationSignal other = sampleSignal(u"b"_qs, u"shared"_qs);
        InformationWorkspace workspace;
        workspace.setKept(true, one, firstTime);
        workspace.setKept(true, other, firstTime);

        workspace.setKept(false, one, laterTime);

        QVERIFY(!workspace.saved.contains(u"a"_qs));
        QVERIFY(workspace.saved.contains(u"b"_qs));
        QVERIFY(!workspace.keeps(other));
    }

    void unkeepingRemovesEveryOccurrenceOfTheTarget()
    {
        InformationWorkspace workspace;
        workspace.following = {u"target:a"_qs, u"other"_qs, u"target:a"_qs};

        workspace.setKept(false, sampleSignal(u"a"_qs), firstTime);

        QCOMPARE(workspace.following, QList<QString>{u"other"_qs});
    }

    void seeingATargetTwiceDoesNotMoveIt()
    {
        InformationWorkspace workspace;
        workspace.markSeen(sampleSignal(u"a"_qs));
        workspace.markSeen(sampleSignal(u"b"_qs));

        workspace.markSeen(sampleSignal(u"a"_qs));

        QVERIFY(workspace.hasSeen(sampleSignal(u"a"_qs)));
        QVERIFY(!workspace.hasSeen(sampleSignal(u"c"_qs)));
        QCOMPARE(workspace.seenTargets, (QList<QString>{u"target:a"_qs, u"target:b"_qs}));
    }

    void the301stSeenTargetDropsTheOldest()
    {
        InformationWorkspace workspace;
        workspace.seenTargets = numbered(u"t"_qs, 300);

        workspace.markSeen(sampleSignal(u"a"_qs));

        QCOMPARE(workspace.seenTargets, numbered(u"t"_qs, 300).sliced(1) << u"target:a"_qs);
    }

    void aSeenTargetLeavesAnOverlongListAlone()
    {
        InformationWorkspace workspace;
        workspace.seenTargets = numbered(u"t"_qs, 305);

        workspace.markSeen(sampleSignal(u"a"_qs, u"t1"_qs));
        QCOMPARE(workspace.seenTargets.size(), 305);

        workspace.markSeen(sampleSignal(u"a"_qs));
        QCOMPARE(workspace.seenTargets, numbered(u"t"_qs, 305).sliced(6) << u"target:a"_qs);
    }

    void savedSignalsAreHeldInCodePointOrder()
    {
        InformationWorkspace workspace;
        for (const QString& id : {u"\U0001F600"_qs, u"\uFFFD"_qs, u"b"_qs, u"B"_qs}) {
            workspace.setKept(true, sampleSignal(id), firstTime);
        }

        QStringList ids;
        for (const auto& [id, saved] : workspace.saved) {
            ids.append(id);
        }
        QCOMPARE(ids, (QStringList{u"B"_qs, u"b"_qs, u"\uFFFD"_qs, u"\U0001F600"_qs}));
    }

    void reducingHidesTheVersionAndItsLaneOnce()
    {
        auto signal = sampleSignal(u"a"_qs);
        signal.lane = InformationLane::Workflow;
        InformationWorkspace workspace;

        workspace.reduceSimilar(signal);
        workspace.reduceSimilar(signal);

        QCOMPARE(workspace.hidden, QList{u"a@2026-09-01T00:00:00Z"_qs});
        QCOMPARE(workspace.reducedLanes, QList{InformationLane::Workflow});
    }
};

TEST_SUBJECT(InformationWorkspaceTest)
#include "InformationWorkspaceTest.moc"
