// SPDX-License-Identifier: Apache-2.0

#include "LocalFileManager.h"
#include "NextStart.h"
#include "ReaderActions.h"
#include "SiteDocuments.h"
#include "StoredWorkspace.h"
#include "Subject.h"

#include <QTest>

#include <functional>
#include <sys/stat.h>

namespace {

using Store = std::function<void(const DataFolder&, const QByteArray&)>;

// As sync services, editors and copying leave them.
const QStringList copies{
    u"workspace-v1 (冲突副本 2026-09-02).json"_qs,
    u"workspace-v1.sync-conflict-20260902-101010-ABCDEFG.json"_qs,
    u"workspace-v1 2.json"_qs,
    u"workspace-v1.json~"_qs,
    u".workspace-v1.json.swp"_qs,
};

QByteArray withFollowed(const QByteArray& document)
{
    auto workspace = InformationWorkspaceCoding::decode(document).value();
    workspace.following.append(u"followed elsewhere"_qs);
    return InformationWorkspaceCoding::encode(workspace);
}

bool isFollowed(InformationModel& model)
{
    return model.workspace().following.contains(u"followed elsewhere"_qs);
}

// Which file it is, how it is, and when it was written and read last.
QList<qint64> stateOf(const QString& path)
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0) {
        return {};
    }
    return {static_cast<qint64>(status.st_ino),
            status.st_mode,
            status.st_atim.tv_sec,
            status.st_atim.tv_nsec,
            status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec,
            status.st_ctim.tv_sec,
            status.st_ctim.tv_nsec};
}

} // namespace

// What a sync service or another program does in the data folder while the program runs.
class StoredElsewhereTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isShownWithoutBeingAskedFor_data()
    {
        QTest::addColumn<Store>("store");

        QTest::newRow("replaced") << Store([](const DataFolder& folder, const QByteArray& bytes) {
            QVERIFY(LocalFileManager(std::nullopt)
                        .replaceFile(folder.path(DataFolder::workspace), bytes));
        });
        QTest::newRow("written in place")
            << Store([](const DataFolder& folder, const QByteArray& bytes) {
                   folder.store(DataFolder::workspace, bytes);
               });
    }

    void isShownWithoutBeingAskedFor()
    {
        QFETCH(const Store, store);
        const DataFolder folder;
        folder.store(DataFolder::workspace, storedWorkspace());
        ProgramStart program(folder.environment());
        QVERIFY(program.model().addSource(u"一句想跟踪的话"_qs));
        const QByteArray document = withFollowed(folder.content(DataFolder::workspace));

        store(folder, document);

        QTRY_VERIFY(isFollowed(program.model()));
        QVERIFY(!program.model().canUndo());
        QVERIFY(program.model().addSource(u"另一句想跟踪的话"_qs));
        QVERIFY(folder.content(DataFolder::workspace).contains("followed elsewhere"));
    }

    void isShownAtOnceWhenTheReaderTurnsToTheProgram()
    {
        const DataFolder folder;
        folder.store(DataFolder::workspace, storedWorkspace());
        ProgramStart program(folder.environment());
        folder.store(DataFolder::workspace, withFollowed(storedWorkspace()));

        program.parts.catchUp();

        QVERIFY(isFollowed(program.model()));
    }

    void thatRepairsTheFileIsShown()
    {
        const DataFolder folder;
        folder.store(DataFolder::workspace, "{");
        ProgramStart program(folder.environment());
        QVERIFY(program.model().hasErrorMessage());

        folder.store(DataFolder::workspace, withFollowed(storedWorkspace()));

        QTRY_VERIFY(isFollowed(program.model()));
    }

    void conflictCopiesAreLeftAlone()
    {
        const DataFolder folder;
        folder.store(DataFolder::workspace, storedWorkspace());
        QList<QList<qint64>> before;
        for (const QString& copy : copies) {
            folder.store(DataFolder::storage + u'/' + copy, withFollowed(storedWorkspace()));
            before.append(stateOf(folder.path(DataFolder::storage + u'/' + copy)));
        }

        doEverything(folder);
        verifyNextStart(folder);

        for (qsizetype index = 0; index < copies.size(); ++index) {
            const QString copy = DataFolder::storage + u'/' + copies.at(index);
            QCOMPARE(stateOf(folder.path(copy)), before.at(index));
        }
        QVERIFY(!folder.content(DataFolder::workspace).contains("followed elsewhere"));
    }

private:
    static void doEverything(const DataFolder& folder)
    {
        ProgramStart program(folder.environment());
        program.site.answers.insert(
            SiteClient::packPath,
            SiteReply{SiteDocuments::pack(u"2090-01-01T00:00:00Z"_qs, {u"new"_qs}), 200});
        for (const auto& act : ReaderActions::all()) {
            act(program.model());
        }
    }
};

TEST_SUBJECT(StoredElsewhereTest)
#include "StoredElsewhereTest.moc"
