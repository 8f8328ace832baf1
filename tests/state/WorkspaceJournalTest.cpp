#include "WorkspaceJournal.h"

#include "MemoryFileManager.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

namespace {

const QString filePath = u"/support/Corvanite/Information/workspace-v1.json"_qs;

void follow(InformationWorkspace& workspace)
{
    workspace.following.append(u"a"_qs);
}

} // namespace

class WorkspaceJournalTest : public QObject
{
    Q_OBJECT

    MemoryFileManager m_files;

    WorkspaceJournal journal() const
    {
        return WorkspaceJournal(InformationWorkspaceRepository{filePath}, m_files);
    }

    void storeFromElsewhere() const
    {
        InformationWorkspace workspace;
        workspace.following.append(u"elsewhere"_qs);
        QVERIFY(InformationWorkspaceRepository{filePath}.save(workspace, m_files));
    }

private Q_SLOTS:
    void init() { m_files = MemoryFileManager(); }

    void appliesAtOnceAndStoresAfter()
    {
        auto journal = this->journal();

        journal.apply(follow);
        QCOMPARE(journal.workspace().following, QList{u"a"_qs});
        QVERIFY(m_files.files.isEmpty());

        QVERIFY(journal.store());
        QCOMPARE(this->journal().workspace(), journal.workspace());
    }

    void takesBackWhatCannotBeStored()
    {
        auto journal = this->journal();
        m_files.writeFailure = FileError{FileError::Reason::NoSpace};

        journal.apply(follow);
        const auto stored = journal.store();

        QCOMPARE(stored.error(),
                 u"没有保存这次操作："_qs + m_files.writeFailure->localizedDescription());
        QCOMPARE(journal.workspace(), InformationWorkspace());
    }

    void saysThatThereIsNoStorage()
    {
        WorkspaceJournal journal(std::nullopt, m_files);

        journal.apply(follow);

        QCOMPARE(journal.store().error(), u"没有可用的本机存储；这次操作没有保存。"_qs);
        QCOMPARE(journal.workspace(), InformationWorkspace());
        QVERIFY(!journal.loadFailure());
    }

    void leavesAloneAFileThatDoesNotRead()
    {
        m_files.files.insert(filePath, "{");
        auto journal = this->journal();

        QVERIFY(journal.loadFailure()->startsWith(u"已有信息没有被覆盖："));
        journal.apply(follow);
        QVERIFY(!journal.store());

        QCOMPARE(m_files.files.value(filePath), QByteArray("{"));
    }

    void goesOneStepBack()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store());
        journal.keepUndo();
        QVERIFY(journal.canUndo());

        journal.apply(journal.undo());
        QVERIFY(journal.store());

        QCOMPARE(journal.workspace(), InformationWorkspace());
        QVERIFY(journal.canUndo());
        journal.clearUndo();
        QVERIFY(!journal.canUndo());
    }

    // It was overwritten with what this run had in memory.
    void goesOnFromWhatSomethingElseHasStored()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store());
        journal.keepUndo();
        storeFromElsewhere();

        journal.apply(follow);
        QVERIFY(!journal.canUndo());
        QVERIFY(journal.store());

        QCOMPARE(journal.workspace().following, (QList{u"elsewhere"_qs, u"a"_qs}));
        QCOMPARE(this->journal().workspace(), journal.workspace());
    }

    void refusesAnActionOverAFileThatNoLongerReads_data()
    {
        QTest::addColumn<bool>("isDamaged");

        QTest::newRow("damaged") << true;
        QTest::newRow("may not be read") << false;
    }

    void refusesAnActionOverAFileThatNoLongerReads()
    {
        QFETCH(const bool, isDamaged);
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store());
        const auto stored = journal.workspace();
        if (isDamaged) {
            m_files.files.insert(filePath, "{");
        } else {
            m_files.readFailure = FileError{FileError::Reason::ReadPermissionDenied};
        }
        const auto files = m_files.files;

        journal.apply(follow);
        const auto again = journal.store();

        QVERIFY(!again);
        QVERIFY(again.error().startsWith(u"没有保存这次操作："));
        QCOMPARE(journal.workspace(), stored);
        QCOMPARE(m_files.files, files);
    }

    void goesOnOnceTheFileReadsAgain()
    {
        auto journal = this->journal();
        m_files.readFailure = FileError{FileError::Reason::InputOutput};
        journal.apply(follow);
        QVERIFY(!journal.store());
        m_files.readFailure.reset();

        journal.apply(follow);
        QVERIFY(journal.store());

        QCOMPARE(this->journal().workspace(), journal.workspace());
    }

    void doesNotUndoOverWhatSomethingElseHasStored()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store());
        journal.keepUndo();
        storeFromElsewhere();

        journal.apply(journal.undo());

        QCOMPARE(journal.store().error(),
                 u"没有撤销：保存的信息在别处有了改动，现在显示的是改动后的。"_qs);
        QCOMPARE(journal.workspace().following, QList{u"elsewhere"_qs});
        QCOMPARE(this->journal().workspace(), journal.workspace());
    }

    void storesEverythingAgainWhereTheFileIsGone()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store());
        m_files.files.clear();

        journal.apply([](InformationWorkspace& workspace) { workspace.following.append(u"b"_qs); });
        QVERIFY(journal.store());

        QCOMPARE(this->journal().workspace().following, (QList{u"a"_qs, u"b"_qs}));
    }
};

TEST_SUBJECT(WorkspaceJournalTest)
#include "WorkspaceJournalTest.moc"
