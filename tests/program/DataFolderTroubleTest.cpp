// SPDX-License-Identifier: Apache-2.0

#include "DataFolder.h"
#include "ErrorLeads.h"
#include "NextStart.h"
#include "OrdinaryUser.h"
#include "ProgramStart.h"
#include "SiteDocuments.h"
#include "StoredWorkspace.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <functional>
#include <memory>
#include <sys/stat.h>

namespace {

using Standing = ProgramInstance::Standing;

const QString noStorage = u"没有可用的本机存储；这次操作没有保存。"_qs;
const QString mayNotWrite = u"没有写入权限；请检查数据目录的权限。"_qs;
const QString mayNotRead = u"没有读取权限；请检查数据目录的权限。"_qs;
const QString noOrdinaryFile = u"文件被占用或不是普通文件。"_qs;
const QString noFolder = u"数据目录不存在，也无法创建。"_qs;

const QString aside = u"aside"_qs;
const QString lock = DataFolder::storage + u"/.lock"_qs;

struct Trouble
{
    std::function<void(const DataFolder&)> arise;
    std::function<void(const DataFolder&)> goAway;
    /// What is told at a start under it, and at an action then.
    QString atTheStart;
    QString afterTheStart;
    /// What an action is told when it came up while the program ran; empty where it saves.
    QString whileRunning;
};

void setMode(const DataFolder& folder, const QString& name, mode_t mode)
{
    QCOMPARE(::chmod(QFile::encodeName(folder.path(name)).constData(), mode), 0);
}

void move(const DataFolder& folder, const QString& from, const QString& to)
{
    QVERIFY(QFile::rename(folder.path(from), folder.path(to)));
}

void removeFolder(const DataFolder& folder, const QString& name)
{
    QVERIFY(QDir(folder.path(name)).removeRecursively());
}

const QMap<QString, Trouble>& troubles()
{
    static const QMap<QString, Trouble> all{
        {u"the folder may not be written"_qs,
         {[](auto& folder) { setMode(folder, DataFolder::storage, 0500); },
          [](auto& folder) { setMode(folder, DataFolder::storage, 0700); },
          {},
          notSaved + mayNotWrite,
          notSaved + mayNotWrite}},
        {u"the folder is closed"_qs,
         {[](auto& folder) { setMode(folder, DataFolder::storage, 0); },
          [](auto& folder) { setMode(folder, DataFolder::storage, 0700); }, notRead + mayNotRead,
          noStorage, notSaved + mayNotRead}},
        {u"the lock file may not be opened"_qs,
         {[](auto& folder) { setMode(folder, lock, 0); },
          [](auto& folder) { setMode(folder, lock, 0600); },
          {},
          notSaved + mayNotWrite,
          {}}},
        {u"a file lies in the folder's place"_qs,
         {[](auto& folder) {
              move(folder, DataFolder::storage, aside);
              folder.store(DataFolder::storage, "a file");
          },
          [](auto& folder) {
              QVERIFY(QFile::remove(folder.path(DataFolder::storage)));
              move(folder, aside, DataFolder::storage);
          },
          {},
          notSaved + noFolder,
          notSaved + noFolder}},
        {u"the file may not be read"_qs,
         {[](auto& folder) { setMode(folder, DataFolder::workspace, 0); },
          [](auto& folder) { setMode(folder, DataFolder::workspace, 0600); }, notRead + mayNotRead,
          noStorage, notSaved + mayNotRead}},
        {u"a folder lies in the file's place"_qs,
         {[](auto& folder) {
              move(folder, DataFolder::workspace, aside);
              folder.store(DataFolder::workspace + u"/something"_qs, "of value");
          },
          [](auto& folder) {
              QCOMPARE(folder.content(DataFolder::workspace + u"/something"_qs),
                       QByteArray("of value"));
              removeFolder(folder, DataFolder::workspace);
              move(folder, aside, DataFolder::workspace);
          },
          notRead + noOrdinaryFile, noStorage, notSaved + noOrdinaryFile}},
        {u"the file is a link to itself"_qs,
         {[](auto& folder) {
              move(folder, DataFolder::workspace, aside);
              QVERIFY(QFile::link(folder.path(DataFolder::workspace),
                                  folder.path(DataFolder::workspace)));
          },
          [](auto& folder) {
              QVERIFY(QFile::remove(folder.path(DataFolder::workspace)));
              move(folder, aside, DataFolder::workspace);
          },
          notRead + noOrdinaryFile, noStorage, notSaved + noOrdinaryFile}},
        {u"the disk that the file is linked to is not plugged in"_qs,
         {[](auto& folder) { move(folder, DataFolder::elsewhere, aside); },
          [](auto& folder) { move(folder, aside, DataFolder::elsewhere); }, notRead + noFolder,
          noStorage, notSaved + noFolder}},
    };
    return all;
}

// With a stored workspace, that of the last trouble through a link.
void fill(const DataFolder& folder, const QString& trouble)
{
    if (trouble.contains(u"linked")) {
        folder.store(DataFolder::linked, storedWorkspace());
        QVERIFY(QDir().mkpath(folder.path(DataFolder::storage)));
        QVERIFY(QFile::link(folder.path(DataFolder::linked), folder.path(DataFolder::workspace)));
    } else {
        folder.store(DataFolder::workspace, storedWorkspace());
    }
    folder.store(lock, {});
}

} // namespace

class DataFolderTroubleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(actAsOrdinaryUser()); }

    void aTroubleAtTheStartLosesNothing_data() { addTroubles(); }

    void aTroubleAtTheStartLosesNothing()
    {
        QFETCH(QString, name);
        const Trouble& trouble = *troubles().constFind(name);
        const DataFolder folder;
        fill(folder, name);
        const QByteArray before = folder.content(DataFolder::workspace);
        trouble.arise(folder);
        {
            ProgramStart program(folder.environment());
            auto& model = program.model();
            QCOMPARE(model.errorText(), trouble.atTheStart);
            const InformationWorkspace shown = model.workspace();

            verifyRefused(model, trouble.afterTheStart);
            QCOMPARE(model.workspace(), shown);

            trouble.goAway(folder);
            QCOMPARE(folder.content(DataFolder::workspace), before);
            model.dismissError();
            model.addSource(u"再试一次"_qs);
            QCOMPARE(model.errorText(), QString());
            auto workspace =
                InformationWorkspaceCoding::decode(folder.content(DataFolder::workspace));
            QVERIFY(workspace);
            QCOMPARE(*workspace, model.workspace());
            workspace->customSources.removeLast();
            QCOMPARE(InformationWorkspaceCoding::encode(*workspace), before);
        }
        verifyNextStart(folder);
    }

    void aTroubleWhileTheProgramRunsLosesNothing_data() { addTroubles(); }

    void aTroubleWhileTheProgramRunsLosesNothing()
    {
        QFETCH(QString, name);
        const Trouble& trouble = *troubles().constFind(name);
        const DataFolder folder;
        fill(folder, name);
        {
            ProgramStart program(folder.environment());
            auto& model = program.model();
            QVERIFY(model.addSource(u"先收下一项"_qs));
            const InformationWorkspace shown = model.workspace();
            const QByteArray before = folder.content(DataFolder::workspace);
            trouble.arise(folder);

            if (!trouble.whileRunning.isEmpty()) {
                verifyRefused(model, trouble.whileRunning);
                QCOMPARE(model.workspace(), shown);
                trouble.goAway(folder);
                QCOMPARE(folder.content(DataFolder::workspace), before);
            }
            model.dismissError();
            QVERIFY(model.addSource(u"再试一次"_qs));
            QVERIFY(!model.hasErrorMessage());
            QCOMPARE(folder.content(DataFolder::workspace),
                     InformationWorkspaceCoding::encode(model.workspace()));
        }
        if (trouble.whileRunning.isEmpty()) {
            trouble.goAway(folder);
        }
        verifyNextStart(folder);
    }

    void aFolderThatIsDeletedMeanwhileIsMadeAgainWithEverything()
    {
        const DataFolder folder;
        fill(folder, {});
        {
            ProgramStart program(folder.environment());
            const InformationWorkspace shown = program.model().workspace();
            removeFolder(folder, u"support"_qs);

            QVERIFY(program.model().addSource(u"再收下一项"_qs));

            auto workspace =
                InformationWorkspaceCoding::decode(folder.content(DataFolder::workspace));
            QVERIFY(workspace);
            QCOMPARE(*workspace, program.model().workspace());
            workspace->customSources.removeLast();
            QCOMPARE(*workspace, shown);
        }
        verifyNextStart(folder);
    }

    void aSecondStartAsksTheFirstAlsoWhereTheFolderWasDeleted()
    {
        const DataFolder folder;
        fill(folder, {});
        {
            ProgramStart first(folder.environment());
            const QSignalSpy requests(&first.parts.instance(),
                                      &ProgramInstance::activationRequested);
            removeFolder(folder, u"support"_qs);

            std::optional<Standing> standing;
            bool hasModel = true;
            std::unique_ptr<QThread> second(QThread::create([&] {
                ProgramStart program(folder.environment());
                standing = program.parts.instance().standing();
                hasModel = program.parts.model() != nullptr;
            }));
            second->start();
            QTRY_VERIFY_WITH_TIMEOUT(second->isFinished(), 20000);

            QCOMPARE(standing, Standing::Later);
            QVERIFY(!hasModel);
            QCOMPARE(requests.size(), 1);
            QVERIFY(first.model().addSource(u"再收下一项"_qs));
        }
        verifyNextStart(folder);
    }

    void whatIsStoredIsShownWhereItCannotBeHeld()
    {
        const DataFolder folder;
        fill(folder, {});
        folder.store(DataFolder::pack,
                     SiteDocuments::pack(u"2090-01-01T00:00:00Z"_qs, {u"new"_qs}));
        setMode(folder, lock, 0);

        ProgramStart program(folder.environment());

        QCOMPARE(program.parts.instance().standing(), Standing::WithoutLock);
        QCOMPARE(program.model().errorText(), QString());
        QCOMPARE(InformationWorkspaceCoding::encode(program.model().workspace()),
                 folder.content(DataFolder::workspace));
        QCOMPARE(program.model().signals().size(), 1);
    }

    void aDanglingLinkStaysAndItsTargetIsMade()
    {
        const DataFolder folder;
        folder.store(DataFolder::elsewhere + u"/something else"_qs, {});
        QVERIFY(QDir().mkpath(folder.path(DataFolder::storage)));
        QVERIFY(QFile::link(folder.path(DataFolder::linked), folder.path(DataFolder::workspace)));
        {
            ProgramStart program(folder.environment());
            QVERIFY(!program.model().hasErrorMessage());
            QVERIFY(program.model().addSource(u"第一项"_qs));
            QCOMPARE(folder.content(DataFolder::linked),
                     InformationWorkspaceCoding::encode(program.model().workspace()));
        }
        verifyNextStart(folder);
        QVERIFY(QFileInfo(folder.path(DataFolder::workspace)).isSymLink());
    }

    void aPackThatCannotBeStoredChangesNothingUntilItCan()
    {
        const DataFolder folder;
        fill(folder, {});
        folder.store(DataFolder::pack + u"/something"_qs, "of value");
        const QByteArray before = folder.content(DataFolder::workspace);
        {
            ProgramStart program(folder.environment());
            auto& model = program.model();
            const QList<InformationSignal> shown = model.signals();
            program.site.answers.insert(
                SiteClient::packPath,
                SiteReply{SiteDocuments::pack(u"2090-01-01T00:00:00Z"_qs, {u"new"_qs}), 200});

            model.refreshPackFromSite();
            QVERIFY(model.packSyncFailed());
            QCOMPARE(model.signals(), shown);
            QCOMPARE(folder.content(DataFolder::pack + u"/something"_qs), QByteArray("of value"));
            QCOMPARE(folder.leftovers(), QStringList());

            removeFolder(folder, DataFolder::pack);
            model.refreshPackFromSite();
            QVERIFY(!model.packSyncFailed());
            QCOMPARE(model.signals().size(), 1);
            QCOMPARE(folder.content(DataFolder::workspace), before);
        }
        verifyNextStart(folder);
    }

private:
    static void addTroubles()
    {
        QTest::addColumn<QString>("name");
        for (auto trouble = troubles().begin(); trouble != troubles().end(); ++trouble) {
            QTest::newRow(qUtf8Printable(trouble.key())) << trouble.key();
        }
    }

    static void verifyRefused(InformationModel& model, const QString& error)
    {
        QVERIFY(!model.addSource(u"一句想跟踪的话"_qs));
        QCOMPARE(model.errorText(), error);
        QVERIFY(!model.hasReceipt());
        QVERIFY(!model.canUndo());
    }
};

TEST_SUBJECT(DataFolderTroubleTest)
#include "DataFolderTroubleTest.moc"
