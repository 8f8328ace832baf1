// SPDX-License-Identifier: Apache-2.0

#include "FourSignals.h"
#include "Subject.h"

#include <QTest>

/// What the model does when a signal is kept, noted or taken away.
class ModelKeepingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sample = fourSignals(); }

    void keepingSavesInWholeSecondsAndCanBeUndone()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);

        QVERIFY(model->isKept(m_sample.signals[0]));
        QCOMPARE(model->receipt(), u"已收下；后续实质变化会续到同一条脉络。"_qs);
        QVERIFY(model->canUndo());
        QCOMPARE(m_sample.stored(), model->workspace());
        const auto& entry = model->workspace().saved.at(u"a"_qs);
        QCOMPARE(entry.savedAt.time_since_epoch().count(), 1788220800);
        QCOMPARE(entry.saveReason, u"Why a"_qs);

        model->undoLastAction();
        QVERIFY(!model->isKept(m_sample.signals[0]));
        QCOMPARE(model->receipt(), u"已撤销上一步操作。"_qs);
        QVERIFY(!model->canUndo());
        QCOMPARE(m_sample.stored(), InformationWorkspace());
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
        m_sample.store(workspace);

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
        m_sample.store(workspace);

        QCOMPARE(m_sample.make()->savedEntry(m_sample.signals[0])->first, u"b"_qs);
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

        QCOMPARE(m_sample.stored(), model->workspace());
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

private:
    SampleModel m_sample;
};

TEST_SUBJECT(ModelKeepingTest)
#include "ModelKeepingTest.moc"
