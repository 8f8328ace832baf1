// SPDX-License-Identifier: Apache-2.0

#include "FourSignals.h"
#include "InformationProjection.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

class InformationModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sample = fourSignals(); }

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

    void anUnknownSignalDoesNothing()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"nobody"_qs);

        QVERIFY(!model->receipt());
        QVERIFY(m_sample.files.files.isEmpty());
    }

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

    void searchLooksAtANoteAsItIsWritten()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        model->setSearch(u"rust"_qs);
        QVERIFY(model->keptSignals().isEmpty());

        model->updateNote(u"a"_qs, u"Rust 笔记"_qs);
        QCOMPARE(model->keptSignals().size(), 1);
    }

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

    void onlyAKnownThreadOpens()
    {
        const auto model = m_sample.make();
        model->openThread(u"gone"_qs);
        QVERIFY(!model->openThread());

        model->openThread(u"old"_qs);
        QCOMPARE(model->openThread(), u"old"_qs);
    }

    void derivedLists()
    {
        const auto model = m_sample.make();

        QCOMPARE(model->archiveDays().first().date, u"2026-09-02"_qs);
        QCOMPARE(model->weeklyWeeks().size(), 1);
        QCOMPARE(model->signalById(u"old"_qs), m_sample.retiredSignals[0]);
        QVERIFY(!model->signalById(u"gone"_qs));
    }

    void aPageOfTheSiteHasItsAddress()
    {
        QCOMPARE(m_sample.make()->sitePage(u"来源"_qs),
                 u"https://corvanite.example/%E6%9D%A5%E6%BA%90"_qs);
    }

    void tellsWhatAnActionDoesInOrder_data()
    {
        QTest::addColumn<bool>("fails");
        QTest::addColumn<QStringList>("told");

        QTest::newRow("stored") << false
                                << QStringList{u"workspace"_qs, u"receipt"_qs, u"storing"_qs,
                                               u"undo"_qs};
        QTest::newRow("not stored")
            << true << QStringList{u"workspace"_qs, u"receipt"_qs,    u"storing"_qs,
                                   u"workspace"_qs, u"no receipt"_qs, u"error"_qs};
    }

    void tellsWhatAnActionDoesInOrder()
    {
        QFETCH(const bool, fails);
        const auto model = m_sample.make();
        QStringList told;
        const auto tell = [&told](const QString& what) {
            return [&told, what] { told.append(what); };
        };
        connect(model.get(), &InformationModel::workspaceChanged, this, tell(u"workspace"_qs));
        connect(model.get(), &InformationModel::receiptChanged, this,
                [&] { told.append(model->receipt() ? u"receipt"_qs : u"no receipt"_qs); });
        connect(model.get(), &InformationModel::canUndoChanged, this, tell(u"undo"_qs));
        connect(model.get(), &InformationModel::errorMessageChanged, this, tell(u"error"_qs));
        m_sample.files.beforeReplacing = tell(u"storing"_qs);
        if (fails) {
            m_sample.files.writeFailures.insert(workspacePath,
                                                FileError{FileError::Reason::NoSpace});
        }

        model->toggleKeep(u"a"_qs);

        QTEST(told, "told");
    }

    void aReceiptIsToldAnewWhereItsWordsStandThereAlready()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        const auto receipt = model->receipt();
        const QSignalSpy told(model.get(), &InformationModel::receiptChanged);

        model->toggleKeep(u"b"_qs);

        QCOMPARE(model->receipt(), receipt);
        QVERIFY(!told.isEmpty());
    }

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

private:
    SampleModel m_sample;
};

TEST_SUBJECT(InformationModelTest)
#include "InformationModelTest.moc"
