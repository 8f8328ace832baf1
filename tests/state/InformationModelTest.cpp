#include "InformationModel.h"
#include "InformationIntake.h"
#include "InformationProjection.h"
#include "SampleModel.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const QString workspacePath = u"/support/Corvanite/Information/workspace-v1.json"_qs;
constexpr double keptTime = 1788220800.75;

} // namespace

class InformationModelTest : public QObject
{
    Q_OBJECT

private:
    SampleModel m_sample;

    InformationWorkspace stored() const
    {
        return InformationWorkspaceRepository::live(m_sample.files)
            .value()
            .load(m_sample.files)
            .value();
    }

private Q_SLOTS:
    void init()
    {
        m_sample = SampleModel();
        m_sample.now = keptTime;
        m_sample.signals = {sampleSignal(u"a"_qs), sampleSignal(u"b"_qs), sampleSignal(u"c"_qs),
                            sampleSignal(u"d"_qs)};
        m_sample.signals[1].lane = InformationLane::Workflow;
        m_sample.retiredSignals = {sampleSignal(u"old"_qs)};
        m_sample.selectionDays = {{u"2026-09-01"_qs, {u"a"_qs, u"old"_qs}, 4},
                                  {u"2026-09-02"_qs, {u"b"_qs, u"gone"_qs}, 3}};
        m_sample.packAsOf = u"2026-09-02T04:00:00.000Z"_qs;
    }

    // Start

    void startsEmptyWithoutAFileAndMakesNone()
    {
        const auto model = m_sample.make();

        QCOMPARE(model->workspace(), InformationWorkspace());
        QVERIFY(!model->errorMessage());
        QVERIFY(m_sample.files.files.isEmpty());
        QVERIFY(m_sample.files.folders.isEmpty());
    }

    void anUnreadableWorkspaceIsReportedAndNeverOverwritten()
    {
        const QByteArray newer = R"({"version": 4})";
        m_sample.files.files.insert(workspacePath, newer);

        const auto model = m_sample.make();
        QCOMPARE(model->errorMessage(), u"已有信息没有被覆盖：信息资料库版本 4 暂不受支持。"_qs);

        model->toggleKeep(u"a"_qs);
        QCOMPARE(model->errorMessage(), u"没有可用的本机存储；这次操作没有保存。"_qs);
        QCOMPARE(model->workspace(), InformationWorkspace());
        QVERIFY(!model->receipt());
        QVERIFY(!model->canUndo());
        QCOMPARE(m_sample.files.files.value(workspacePath), newer);
    }

    void withoutARepositoryNothingIsReportedUntilAnAction()
    {
        m_sample.hasRepository = false;
        const auto model = m_sample.make();
        QVERIFY(!model->errorMessage());

        model->resetPreferences();
        QCOMPARE(model->errorMessage(), u"没有可用的本机存储；这次操作没有保存。"_qs);
    }

    // Keeping

    void keepingSavesInWholeSecondsAndCanBeUndone()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);

        QVERIFY(model->isKept(m_sample.signals[0]));
        QCOMPARE(model->receipt(), u"已收下；后续实质变化会续到同一条脉络。"_qs);
        QVERIFY(model->canUndo());
        QCOMPARE(stored(), model->workspace());
        const auto& entry = model->workspace().saved.at(u"a"_qs);
        QCOMPARE(entry.savedAt.time_since_epoch().count(), 1788220800);
        QCOMPARE(entry.saveReason, u"Why a"_qs);

        model->undoLastAction();
        QVERIFY(!model->isKept(m_sample.signals[0]));
        QCOMPARE(model->receipt(), u"已撤销上一步操作。"_qs);
        QVERIFY(!model->canUndo());
        QCOMPARE(stored(), InformationWorkspace());
    }

    void keepReceipts_data()
    {
        QTest::addColumn<InformationFollowUpdateMode>("mode");
        QTest::addColumn<QString>("receipt");
        QTest::newRow("verified change") << InformationFollowUpdateMode::VerifiedChange
                                         << u"已收下；后续实质变化会续到同一条脉络。"_qs;
        QTest::newRow("snapshot baseline") << InformationFollowUpdateMode::SnapshotBaseline
                                           << u"已收下；完整核验后的变化会续到同一条脉络。"_qs;
        QTest::newRow("editorial watch")
            << InformationFollowUpdateMode::EditorialWatch
            << u"已收下；这个来源尚未接入自动更新，不会冒充已经同步。"_qs;
    }

    void keepReceipts()
    {
        QFETCH(InformationFollowUpdateMode, mode);
        QFETCH(QString, receipt);
        m_sample.signals[0].followTarget.updateMode = mode;

        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);

        QCOMPARE(model->receipt(), receipt);
    }

    void keepingTwiceTakesTheWholeThreadAway()
    {
        m_sample.signals[1].followTarget = m_sample.signals[0].followTarget;
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        QVERIFY(model->isKept(m_sample.signals[1]));

        model->toggleKeep(u"b"_qs);

        QCOMPARE(model->receipt(), u"已从工作台移除，并停止继续更新。"_qs);
        QVERIFY(model->workspace().saved.empty());
        QVERIFY(model->workspace().following.isEmpty());
    }

    void keepingASavedThreadThatIsNotFollowedOnlyFollowsAgain()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        model->updateNote(u"a"_qs, u"我的备注"_qs);
        auto workspace = model->workspace();
        workspace.following.clear();
        QVERIFY(
            InformationWorkspaceRepository::live(m_sample.files)->save(workspace, m_sample.files));

        m_sample.now += 1000;
        const auto restarted = m_sample.make();
        QVERIFY(!restarted->isKept(m_sample.signals[0]));
        restarted->toggleKeep(u"a"_qs);

        QVERIFY(restarted->isKept(m_sample.signals[0]));
        QCOMPARE(restarted->workspace().saved, workspace.saved);
    }

    void theLastKeptEntryStandsForAThreadAndTheFirstKeyOnATie()
    {
        m_sample.signals[1].followTarget = m_sample.signals[0].followTarget;
        m_sample.signals[2].followTarget = m_sample.signals[0].followTarget;
        InformationWorkspace workspace;
        const std::chrono::sys_seconds early{std::chrono::seconds(1000)};
        const std::chrono::sys_seconds late{std::chrono::seconds(2000)};
        workspace.saved = {
            {u"a"_qs, {early, {}, {}}}, {u"b"_qs, {late, {}, {}}}, {u"c"_qs, {late, {}, {}}}};
        QVERIFY(
            InformationWorkspaceRepository::live(m_sample.files)->save(workspace, m_sample.files));

        QCOMPARE(m_sample.make()->savedEntry(m_sample.signals[0])->first, u"b"_qs);
    }

    void anUnknownSignalDoesNothing()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"nobody"_qs);

        QVERIFY(!model->receipt());
        QVERIFY(m_sample.files.files.isEmpty());
    }

    // Failing storage

    void aFailedSaveRestoresEverythingAndLeavesNoUndo()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        const auto before = model->workspace();
        const QByteArray fileBefore = m_sample.files.files.value(workspacePath);

        m_sample.files.writeFailure = FileError{FileError::Reason::NoSpace};
        model->toggleKeep(u"b"_qs);

        QCOMPARE(model->workspace(), before);
        QCOMPARE(m_sample.files.files.value(workspacePath), fileBefore);
        QVERIFY(!model->receipt());
        QVERIFY(!model->canUndo());
        QCOMPARE(model->errorMessage(),
                 u"没有保存这次操作："_qs + m_sample.files.writeFailure->localizedDescription());
    }

    void aFailedUndoCanBeTriedAgain()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);

        m_sample.files.writeFailure = FileError{FileError::Reason::ReadOnly};
        model->undoLastAction();
        QVERIFY(model->canUndo());
        QVERIFY(model->isKept(m_sample.signals[0]));

        m_sample.files.writeFailure.reset();
        model->undoLastAction();
        QVERIFY(!model->canUndo());
        QVERIFY(!model->isKept(m_sample.signals[0]));
    }

    void aLaterSuccessLeavesTheErrorMessage()
    {
        const auto model = m_sample.make();
        m_sample.files.writeFailure = FileError{FileError::Reason::NoSpace};
        model->toggleKeep(u"a"_qs);
        m_sample.files.writeFailure.reset();
        model->toggleKeep(u"a"_qs);

        QVERIFY(model->errorMessage());
        model->dismissError();
        QVERIFY(!model->errorMessage());
    }

    // Undo

    void undoGoesOneStepBack()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        const auto afterFirst = model->workspace();
        model->toggleKeep(u"b"_qs);

        model->undoLastAction();
        QCOMPARE(model->workspace(), afterFirst);
        model->undoLastAction();
        QCOMPARE(model->workspace(), afterFirst);
    }

    void seeingNeitherFillsNorClearsUndo()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        model->markSeen(u"b"_qs);

        QVERIFY(model->canUndo());
        QVERIFY(!model->receipt());
        QVERIFY(model->workspace().hasSeen(m_sample.signals[1]));

        model->undoLastAction();
        QVERIFY(!model->workspace().hasSeen(m_sample.signals[1]));
    }

    void seeingAgainSavesNothing()
    {
        const auto model = m_sample.make();
        model->markSeen(u"a"_qs);
        model->toggleKeep(u"b"_qs);
        QSignalSpy changes(model.get(), &InformationModel::workspaceChanged);

        model->markSeen(u"a"_qs);

        QCOMPARE(changes.count(), 0);
        QVERIFY(model->receipt());
    }

    void aNoteClearsUndoAndIsKeptAsTyped()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        const auto receipt = model->receipt();
        model->updateNote(u"a"_qs, u" 备注 "_qs);

        QVERIFY(!model->canUndo());
        QCOMPARE(model->receipt(), receipt);
        QCOMPARE(model->workspace().saved.at(u"a"_qs).note, u" 备注 "_qs);
    }

    void aNoteIsTheSameInMemoryAndInTheFile()
    {
        const auto model = m_sample.make();
        model->updateNote(u"a"_qs, u"半个字符 "_qs + QChar(0xD83D));
        model->addSource(u"半个字符 "_qs + QChar(0xD83D));

        QCOMPARE(stored(), model->workspace());
    }

    void aNoteKeepsASignalThatIsNotKept()
    {
        const auto model = m_sample.make();
        model->updateNote(u"b"_qs, u"备注"_qs);

        QVERIFY(model->isKept(m_sample.signals[1]));
        QCOMPARE(model->workspace().saved.at(u"b"_qs).note, u"备注"_qs);
    }

    void aNoteOnAThreadGoesToItsEntry()
    {
        m_sample.signals[1].followTarget = m_sample.signals[0].followTarget;
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        model->updateNote(u"b"_qs, u"备注"_qs);

        QCOMPARE(model->workspace().saved.size(), size_t(1));
        QCOMPARE(model->workspace().saved.at(u"a"_qs).note, u"备注"_qs);
    }

    void aNoteOnAnUnknownSignalOnlyClearsUndo()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        const auto before = model->workspace();
        model->updateNote(u"old"_qs, u"备注"_qs);

        QVERIFY(!model->canUndo());
        QCOMPARE(model->workspace(), before);
    }

    // Preferences

    void reducingHidesTheVersionAndTurnsTheLaneDown()
    {
        const auto model = m_sample.make();
        model->reduceSimilar(u"b"_qs);

        QCOMPARE(model->receipt(), u"已减少“工作流与方法”并收起当前这条；重要变化仍会保留。"_qs);
        QCOMPARE(model->workspace().hidden, QList{u"b@2026-09-01T00:00:00Z"_qs});
        QCOMPARE(model->workspace().reducedLanes, QList{InformationLane::Workflow});
        QCOMPARE(model->laneAllCount(), 3);
        QCOMPARE(model->laneCount(InformationLane::Workflow), 0);

        model->resetPreferences();
        QCOMPARE(model->receipt(), u"已重置内容调整。"_qs);
        QCOMPARE(model->laneAllCount(), 4);
    }

    void theLaneFilterKeepsOrder()
    {
        const auto model = m_sample.make();
        model->setActiveLane(InformationLane::ProductRadar);

        QCOMPARE(model->laneFilteredSignals(),
                 (QList{m_sample.signals[0], m_sample.signals[2], m_sample.signals[3]}));
    }

    // Hand-ins

    void anAddressOfASignalKeepsTheSignal()
    {
        const auto model = m_sample.make();
        QVERIFY(model->addSource(u"https://origin.example/c"_qs));

        QVERIFY(model->isKept(m_sample.signals[2]));
        QVERIFY(model->workspace().customSources.isEmpty());
        QCOMPARE(model->surface(), InformationModel::Surface::Kept);
        QCOMPARE(model->receipt(), u"已收下；后续实质变化会续到同一条脉络。"_qs);

        QVERIFY(model->addSource(u"https://target.example/c/"_qs));
        QCOMPARE(model->receipt(), u"“Label of target:c”已经在已收下里。"_qs);
        QVERIFY(!model->canUndo());
    }

    void aSentenceBecomesACustomSourceOnce()
    {
        const auto model = m_sample.make();
        QVERIFY(model->addSource(u"  跟踪 本地\n模型 "_qs));
        QCOMPARE(model->workspace().customSources.size(), 1);
        QCOMPARE(model->workspace().customSources.first().input, u"跟踪 本地 模型"_qs);
        QCOMPARE(model->receipt(),
                 u"已收下并安全保存在本机；这个来源尚未接入更新，不会冒充已经同步。"_qs);
        QVERIFY(model->canUndo());
        QCOMPARE(stored(), model->workspace());

        QVERIFY(model->addSource(u"跟踪 本地 模型"_qs));
        QCOMPARE(model->workspace().customSources.size(), 1);
        QCOMPARE(model->receipt(), u"这项内容已经在已收下里，没有重复添加。"_qs);
        QVERIFY(!model->canUndo());

        model->removeSource(model->workspace().customSources.first().id);
        QVERIFY(model->workspace().customSources.isEmpty());
        QCOMPARE(model->receipt(), u"已移除这条内容。"_qs);
    }

    void refusedHandIns_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << u"  \n"_qs << u"请粘贴一个链接，或写一句想持续更新的内容。"_qs;
        QTest::newRow("too long") << u"长"_qs.repeated(501)
                                  << u"请缩短到 500 个字以内；只需说清想跟踪什么。"_qs;
        QTest::newRow("not https")
            << u"http://site.example"_qs
            << u"当前只接收公开 HTTPS 网页；内网、带账号或其他协议不会接入。"_qs;
    }

    void refusedHandIns()
    {
        QFETCH(QString, input);
        QFETCH(QString, message);
        const auto model = m_sample.make();

        QVERIFY(!model->addSource(input));
        QCOMPARE(model->intakeErrorMessage(), message);
        QCOMPARE(model->surface(), InformationModel::Surface::Today);

        model->dismissIntakeError();
        QVERIFY(!model->intakeErrorMessage());
    }

    void theHundredthHandInIsTakenAndTheNextRefused()
    {
        const auto model = m_sample.make();
        for (int number = 1; number <= InformationIntake::maximumCustomSources; ++number) {
            QVERIFY(model->addSource(u"第 %1 项"_qs.arg(number)));
        }
        const auto receipt = model->receipt();

        QVERIFY(!model->addSource(u"再来一项"_qs));
        QCOMPARE(model->intakeErrorMessage(),
                 u"当前设备已收下 100 项自定义内容；先移除不再需要的一项再添加。"_qs);
        QCOMPARE(model->receipt(), receipt);
        QVERIFY(model->canUndo());
    }

    void aFailedHandInStaysOnItsSurface()
    {
        const auto model = m_sample.make();
        m_sample.files.writeFailure = FileError{FileError::Reason::NoSpace};

        QVERIFY(!model->addSource(u"一句话"_qs));
        QVERIFY(!model->addSource(u"https://origin.example/c"_qs));
        QCOMPARE(model->surface(), InformationModel::Surface::Today);
        QVERIFY(model->errorMessage());
    }

    // Focus

    void aPackStampedInMillisecondsShowsTheComputedFocus()
    {
        m_sample.seedHistory = {{u"2026-09-02"_qs, {u"a"_qs}, 4}};
        const auto model = m_sample.make();

        QCOMPARE(model->focusedSignals(),
                 InformationProjection::focusedToday(m_sample.signals, {}, 3, m_sample.packAsOf,
                                                     m_sample.seedHistory));
        QVERIFY(!model->focusedSignals().contains(m_sample.signals[0]));
        QCOMPARE(model->focusedSignals().size() + model->remainingSignals().size(),
                 m_sample.signals.size());
    }

    void aPackStampedInSecondsShowsTheDaysFeaturedSignals()
    {
        m_sample.packAsOf = u"2026-09-01T16:00:00Z"_qs;
        const auto model = m_sample.make();

        QCOMPARE(model->focusedSignals(), QList{m_sample.signals[1]});
    }

    void aDayWhoseFeaturedSignalsAreGoneShowsTheComputedFocus()
    {
        m_sample.packAsOf = u"2026-09-02T04:00:00Z"_qs;
        m_sample.selectionDays = {{u"2026-09-02"_qs, {u"old"_qs, u"gone"_qs}, 3}};
        const auto model = m_sample.make();

        QCOMPARE(model->focusedSignals().size(), 3);
    }

    // Search

    void searchLooksAtTheKeptTexts()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        model->updateNote(u"a"_qs, u"Rust 笔记"_qs);
        model->toggleKeep(u"b"_qs);
        model->addSource(u"Rust 周报"_qs);

        model->setSearch(u"  rust "_qs);
        QCOMPARE(model->keptSignals(), QList{m_sample.signals[0]});
        QCOMPARE(model->keptCustomSources().size(), 1);
        QCOMPARE(model->keptItemCount(), 3);

        model->setSearch(u"label of target:b"_qs);
        QCOMPARE(model->keptSignals(), QList{m_sample.signals[1]});
        QVERIFY(model->keptCustomSources().isEmpty());

        model->setSearch(u" "_qs);
        QCOMPARE(model->keptSignals().size(), 2);
    }

    // Archive

    void onlyAKnownDayOpens()
    {
        const auto model = m_sample.make();
        model->openArchiveDay(u"2026-08-30"_qs);
        QCOMPARE(model->surface(), InformationModel::Surface::Today);
        QVERIFY(!model->selectedArchiveDay());

        model->openArchiveDay(u"2026-09-01"_qs);
        QCOMPARE(model->surface(), InformationModel::Surface::Archive);
        QCOMPARE(model->selectedArchiveDay(), u"2026-09-01"_qs);

        model->setSurface(InformationModel::Surface::Today);
        QCOMPARE(model->selectedArchiveDay(), u"2026-09-01"_qs);
        model->closeArchiveDay();
        QVERIFY(!model->selectedArchiveDay());
    }

    void derivedLists()
    {
        const auto model = m_sample.make();

        QCOMPARE(model->archiveDays().first().date, u"2026-09-02"_qs);
        QCOMPARE(model->weeklyWeeks().size(), 1);
        QCOMPARE(model->signalById(u"old"_qs), m_sample.retiredSignals[0]);
        QVERIFY(!model->signalById(u"gone"_qs));
    }

    // Observers

    void changeSignalsFollowTheAssignment()
    {
        const auto model = m_sample.make();
        bool keptWhenTold = false;
        bool canUndoWhenTold = false;
        connect(model.get(), &InformationModel::workspaceChanged, this,
                [&] { keptWhenTold = model->isKept(m_sample.signals[0]); });
        connect(model.get(), &InformationModel::canUndoChanged, this,
                [&] { canUndoWhenTold = model->canUndo(); });

        model->toggleKeep(u"a"_qs);

        QVERIFY(keptWhenTold);
        QVERIFY(canUndoWhenTold);
    }
};

TEST_SUBJECT(InformationModelTest)
#include "InformationModelTest.moc"
