// SPDX-License-Identifier: Apache-2.0

#include "FileTree.h"
#include "InformationWorkspaceRepository.h"
#include "LocalFileManager.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;

namespace {

InformationWorkspace sampleWorkspace()
{
    InformationWorkspace workspace;
    workspace.setKept(true, sampleSignal(u"a"_qs), std::chrono::sys_seconds(1'788'220'800s));
    return workspace;
}

} // namespace

class StoredWorkspaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onDiskItIsForThisUserOnly()
    {
        const QTemporaryDir root;
        const LocalFileManager fileManager(root.filePath(u"data"_qs));
        const auto live = InformationWorkspaceRepository::live(fileManager).value();

        QVERIFY(live.save(sampleWorkspace(), fileManager));

        QCOMPARE(live.load(fileManager).value(), sampleWorkspace());
        QCOMPARE(live.filePath, root.filePath(u"data/Corvanite/Information/workspace-v1.json"_qs));
        QCOMPARE(modeOf(live.filePath), 0600);
        QCOMPARE(modeOf(root.filePath(u"data/Corvanite/Information"_qs)), 0700);
    }

    void aFolderThatCannotBeMadeFailsTheSave()
    {
        const QTemporaryDir root;
        writeFile(root.filePath(u"data"_qs), "in the way");
        const LocalFileManager fileManager(root.filePath(u"data"_qs));
        const auto live = InformationWorkspaceRepository::live(fileManager).value();

        const auto saved = live.save(sampleWorkspace(), fileManager);
        QVERIFY(!saved);
        QCOMPARE(saved.error().reason, FileError::Reason::FolderMissing);
        QCOMPARE(contentOf(root.filePath(u"data"_qs)), QByteArray("in the way"));
    }
};

TEST_SUBJECT(StoredWorkspaceTest)
#include "StoredWorkspaceTest.moc"
