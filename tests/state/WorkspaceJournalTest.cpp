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
};

TEST_SUBJECT(WorkspaceJournalTest)
#include "WorkspaceJournalTest.moc"
