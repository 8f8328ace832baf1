// SPDX-License-Identifier: Apache-2.0

#include "WorkspaceJournal.h"

#include "MemoryFileManager.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

namespace {

const QString filePath = u"/support/Corvanite/Information/workspace-v1.json"_qs;
const QString previousPath = u"/support/Corvanite/Information/workspace-v1.previous.json"_qs;
constexpr std::chrono::sys_seconds now{std::chrono::seconds(1'788'314'400)};

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

        QVERIFY(journal.store(now));
        QCOMPARE(this->journal().workspace(), journal.workspace());
    }

    void takesBackWhatCannotBeStored()
    {
        auto journal = this->journal();
        m_files.writeFailure = FileError{FileError::Reason::NoSpace};

        journal.apply(follow);
        const auto stored = journal.store(now);

        QCOMPARE(stored.error(),
                 u"没有保存这次操作："_qs + m_files.writeFailure->localizedDescription());
        QCOMPARE(journal.workspace(), InformationWorkspace());
    }

    void saysThatThereIsNoStorage()
    {
        WorkspaceJournal journal(std::nullopt, m_files);

        journal.apply(follow);

        QCOMPARE(journal.store(now).error(), u"没有可用的本机存储；这次操作没有保存。"_qs);
        QCOMPARE(journal.workspace(), InformationWorkspace());
        QVERIFY(!journal.loadFailure());
        QVERIFY(!journal.catchUp());
    }

    void leavesAloneAFileThatDoesNotRead()
    {
        m_files.files.insert(filePath, "{");
        auto journal = this->journal();

        QVERIFY(journal.loadFailure()->startsWith(u"已有信息没有被覆盖："));
        journal.apply(follow);
        QVERIFY(!journal.store(now));

        QCOMPARE(m_files.files.value(filePath), QByteArray("{"));
    }

    void goesOneStepBack()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store(now));
        journal.keepUndo();
        QVERIFY(journal.canUndo());

        journal.apply(journal.undo());
        QVERIFY(journal.store(now));

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
        QVERIFY(journal.store(now));
        journal.keepUndo();
        storeFromElsewhere();

        journal.apply(follow);
        QVERIFY(!journal.canUndo());
        QVERIFY(journal.store(now));

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
        QVERIFY(journal.store(now));
        const auto stored = journal.workspace();
        if (isDamaged) {
            m_files.files.insert(filePath, "{");
        } else {
            m_files.readFailure = FileError{FileError::Reason::ReadPermissionDenied};
        }
        const auto files = m_files.files;

        journal.apply(follow);
        const auto again = journal.store(now);

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
        QVERIFY(!journal.store(now));
        m_files.readFailure.reset();

        journal.apply(follow);
        QVERIFY(journal.store(now));

        QCOMPARE(this->journal().workspace(), journal.workspace());
    }

    void doesNotUndoOverWhatSomethingElseHasStored()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store(now));
        journal.keepUndo();
        storeFromElsewhere();

        journal.apply(journal.undo());

        QCOMPARE(journal.store(now).error(),
                 u"没有撤销：保存的信息在别处有了改动，现在显示的是改动后的。"_qs);
        QCOMPARE(journal.workspace().following, QList{u"elsewhere"_qs});
        QCOMPARE(this->journal().workspace(), journal.workspace());
    }

    void catchesUpWithWhatSomethingElseHasStored()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store(now));
        journal.keepUndo();
        QVERIFY(!journal.catchUp());
        QVERIFY(journal.canUndo());
        storeFromElsewhere();

        QVERIFY(journal.catchUp());

        QCOMPARE(journal.workspace().following, QList{u"elsewhere"_qs});
        QVERIFY(!journal.canUndo());
        QVERIFY(!journal.catchUp());
    }

    void staysAsItIsWhereThatDoesNotRead_data()
    {
        QTest::addColumn<std::optional<QByteArray>>("stored");

        QTest::newRow("damaged") << std::optional(QByteArray("{"));
        QTest::newRow("newer") << std::optional(QByteArray(R"({"version": 4})"));
        QTest::newRow("gone") << std::optional<QByteArray>();
    }

    void staysAsItIsWhereThatDoesNotRead()
    {
        QFETCH(const std::optional<QByteArray>, stored);
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store(now));
        journal.keepUndo();
        m_files.files.clear();
        if (stored) {
            m_files.files.insert(filePath, *stored);
        }

        QVERIFY(!journal.catchUp());

        QCOMPARE(journal.workspace().following, QList{u"a"_qs});
        QVERIFY(journal.canUndo());
        QCOMPARE(m_files.files.size(), stored ? 1 : 0);
    }

    // Between the reading and the replacing there was no second look.
    void appliesAChangeAnewToWhatComesInRightBeforeItIsStored()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store(now));
        m_files.beforeReplacing = [this] { storeFromElsewhere(); };

        journal.apply(follow);
        const auto stored = journal.store(now);

        QCOMPARE(stored.value(), true);
        QCOMPARE(journal.workspace().following, (QList{u"elsewhere"_qs, u"a"_qs}));
        QCOMPARE(this->journal().workspace(), journal.workspace());
        journal.keepUndo();
        journal.apply(journal.undo());
        QCOMPARE(journal.workspace().following, QList{u"elsewhere"_qs});
    }

    void appliesAChangeOnceWhereTheFileGoesRightBeforeItIsStored()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store(now));
        m_files.beforeReplacing = [this] { m_files.files.clear(); };

        journal.apply([](InformationWorkspace& workspace) { workspace.following.append(u"b"_qs); });
        QVERIFY(journal.store(now));

        QCOMPARE(journal.workspace().following, (QList{u"a"_qs, u"b"_qs}));
        QCOMPARE(this->journal().workspace(), journal.workspace());
    }

    void takesNothingButTheChangeBackWhereWhatComesInDoesNotRead()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store(now));
        m_files.beforeReplacing = [this] { m_files.files.insert(filePath, "{"); };

        journal.apply([](InformationWorkspace& workspace) { workspace.following.append(u"b"_qs); });
        const auto stored = journal.store(now);

        QVERIFY(stored.error().startsWith(u"没有保存这次操作："));
        QCOMPARE(journal.workspace().following, QList{u"a"_qs});
        QCOMPARE(m_files.files.value(filePath), QByteArray("{"));
    }

    void givesUpWhereTheFileChangesEachTime()
    {
        auto journal = this->journal();
        const std::function<void()> changeAgain = [&] {
            m_files.files.insert(filePath, m_files.files.value(filePath, "{}") + ' ');
            m_files.beforeReplacing = changeAgain;
        };
        changeAgain();

        journal.apply(follow);
        const auto stored = journal.store(now);

        QCOMPARE(stored.error(), u"没有保存这次操作：文件刚刚在别处有了改动；请再试一次。"_qs);
        QCOMPARE(journal.workspace(), InformationWorkspace());
    }

    void goesOnOnceAFileThatDidNotReadAtTheStartDoes()
    {
        m_files.files.insert(filePath, "{");
        auto journal = this->journal();
        journal.apply(follow);
        QCOMPARE(journal.store(now).error(), u"没有可用的本机存储；这次操作没有保存。"_qs);
        QVERIFY(!journal.catchUp());
        storeFromElsewhere();

        QVERIFY(journal.catchUp());
        QVERIFY(!journal.loadFailure());
        journal.apply(follow);
        QVERIFY(journal.store(now));

        QCOMPARE(this->journal().workspace().following, (QList{u"elsewhere"_qs, u"a"_qs}));
    }

    void keepsTheFileOfTheDayBeforeAtTheFirstSaveOfADay()
    {
        storeFromElsewhere();
        const auto before = m_files.files.value(filePath);
        auto journal = this->journal();

        journal.apply(follow);
        QVERIFY(journal.store(now));
        QCOMPARE(m_files.files.value(previousPath), before);
        m_files.times.insert(previousPath, now);
        journal.apply(follow);
        QVERIFY(journal.store(now));
        QCOMPARE(m_files.files.value(previousPath), before);

        const auto lastOfTheDay = m_files.files.value(filePath);
        journal.apply(follow);
        QVERIFY(journal.store(now + std::chrono::days(1)));
        QCOMPARE(m_files.files.value(previousPath), lastOfTheDay);
    }

    void storesEverythingAgainWhereTheFileIsGone()
    {
        auto journal = this->journal();
        journal.apply(follow);
        QVERIFY(journal.store(now));
        m_files.files.clear();

        journal.apply([](InformationWorkspace& workspace) { workspace.following.append(u"b"_qs); });
        QVERIFY(journal.store(now));

        QCOMPARE(this->journal().workspace().following, (QList{u"a"_qs, u"b"_qs}));
    }
};

TEST_SUBJECT(WorkspaceJournalTest)
#include "WorkspaceJournalTest.moc"
