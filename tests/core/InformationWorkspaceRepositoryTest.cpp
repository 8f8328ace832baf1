// SPDX-License-Identifier: Apache-2.0

#include "InformationWorkspaceRepository.h"

#include "InformationSeed.h"
#include "MemoryFileManager.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QDateTime>
#include <QTest>

using namespace std::chrono_literals;

namespace {

const QString filePath = u"/support/Corvanite/Information/workspace-v1.json"_qs;
const QString previousPath = u"/support/Corvanite/Information/workspace-v1.previous.json"_qs;
const InformationWorkspaceRepository repository{filePath};

InformationWorkspace workspaceToStore()
{
    InformationWorkspace workspace;
    workspace.setKept(true, sampleSignal(u"a"_qs), std::chrono::sys_seconds(1'788'220'800s));
    workspace.hidden = {u"b@2026-09-01T00:00:00Z"_qs};
    workspace.reducedLanes = {InformationLane::Workflow};
    workspace.customSources = {{QUuid(u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F"_qs),
                                u"https://a.example/b"_qs,
                                std::chrono::sys_seconds(1'788'220'801s)}};
    return workspace;
}

MemoryFileManager holding(const QByteArray& document)
{
    MemoryFileManager fileManager;
    fileManager.files.insert(filePath, document);
    return fileManager;
}

InformationSignal observed(const QString& id, const QString& target, const QString& observedAt)
{
    InformationSignal signal = sampleSignal(id, target);
    signal.observedAt = observedAt;
    return signal;
}

// "s2" follows a target that is called like another signal.
QList<InformationSignal> catalog()
{
    return {observed(u"s1"_qs, u"T1"_qs, u"2025-01-02T03:04:05Z"_qs),
            observed(u"s2"_qs, u"s1"_qs, u"2025-02-02T03:04:05.678Z"_qs),
            observed(u"a@b"_qs, u"T3"_qs, u"2025"_qs)};
}

} // namespace

class InformationWorkspaceRepositoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void liesInTheDataDirectory()
    {
        const MemoryFileManager fileManager;

        QCOMPARE(InformationWorkspaceRepository::live(fileManager).value(), repository);
        QVERIFY(fileManager.folders.isEmpty());
    }

    void withoutADataDirectoryThereIsNone()
    {
        MemoryFileManager fileManager;
        fileManager.supportDirectory = std::nullopt;

        const auto live = InformationWorkspaceRepository::live(fileManager);
        QVERIFY(!live);
        QCOMPARE(live.error(),
                 (InformationRepositoryError{
                     InformationRepositoryError::Kind::ApplicationSupportUnavailable}));
    }

    void noFileIsAnEmptyWorkspaceAndMakesNothing()
    {
        const MemoryFileManager fileManager;

        QCOMPARE(repository.load(fileManager).value(), InformationWorkspace());
        QVERIFY(fileManager.files.isEmpty());
        QVERIFY(fileManager.folders.isEmpty());
    }

    void whatIsSavedIsLoaded()
    {
        const MemoryFileManager fileManager;

        QVERIFY(repository.save(workspaceToStore(), fileManager));

        QCOMPARE(repository.load(fileManager).value(), workspaceToStore());
        QCOMPARE(fileManager.folders, QSet<QString>{u"/support/Corvanite/Information"_qs});
    }

    void whatCannotBeLoadedStaysAsItIs_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("reason");

        const auto add = [](const char* title, const QByteArray& document, const QString& reason) {
            QTest::newRow(title) << document << reason;
        };
        add("empty", "", u"信息资料库文件已损坏或不完整。"_qs);
        add("broken", "{\"version\": 3", u"信息资料库文件已损坏或不完整。"_qs);
        add("without a note",
            R"({"saved": {"s1": {"savedAt": "2026-09-01T00:00:00Z", "saveReason": ""}}})",
            u"信息资料库文件里缺少“备注”。"_qs);
        add("undecodable and of a later version", R"({"version": 4, "hidden": 5})",
            u"信息资料库文件里的“收起的内容”无法识别。"_qs);
        add("later version", R"({"version": 4})", u"信息资料库版本 4 暂不受支持。"_qs);
        add("version 0", R"({"version": 0})", u"信息资料库版本 0 暂不受支持。"_qs);
        add("negative version", R"({"version": -1})", u"信息资料库版本 -1 暂不受支持。"_qs);
    }

    void whatCannotBeLoadedStaysAsItIs()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, reason);
        const MemoryFileManager fileManager = holding(document);

        const auto loaded = repository.load(fileManager);
        QVERIFY(!loaded);
        QCOMPARE(localizedDescription(loaded.error()), reason);
        QCOMPARE(fileManager.files, (QHash<QString, QByteArray>{{filePath, document}}));
    }

    void aFileThatCannotBeReadIsAnError()
    {
        MemoryFileManager fileManager = holding("{}");
        fileManager.readFailure = FileError{FileError::Reason::ReadPermissionDenied};

        const auto loaded = repository.load(fileManager);
        QVERIFY(!loaded);
        QCOMPARE(loaded.error(), InformationWorkspaceRepository::LoadError(
                                     FileError{FileError::Reason::ReadPermissionDenied}));
        QCOMPARE(localizedDescription(loaded.error()), u"没有读取权限；请检查数据目录的权限。"_qs);
    }

    void loadingMigratesOverTheCompiledInSignals()
    {
        for (const InformationSignal& signal :
             {InformationSeed::signals().first(), InformationSeed::retiredSignals().first()}) {
            const QByteArray document =
                QByteArray(R"({"version": 2, "following": ["ID"], "hidden": ["ID"]})")
                    .replace("ID", signal.id.toUtf8());
            const MemoryFileManager fileManager = holding(document);

            const InformationWorkspace loaded = repository.load(fileManager).value();
            QCOMPARE(loaded.version, 3);
            QCOMPARE(loaded.following, QList<QString>{signal.followTarget.id});
            QCOMPARE(loaded.hidden, QList<QString>{signal.id + u'@' + signal.observedAt});
            QCOMPARE(fileManager.files.value(filePath), document);
        }
    }

    void versionsOneAndTwoFollowedSignals_data()
    {
        QTest::addColumn<qint64>("version");
        QTest::addColumn<QList<QString>>("following");

        QTest::newRow("1") << qint64{1} << QList<QString>{u"T1"_qs, u"s1"_qs, u"other"_qs};
        QTest::newRow("2") << qint64{2} << QList<QString>{u"T1"_qs, u"s1"_qs, u"other"_qs};
        QTest::newRow("3") << qint64{3}
                           << QList<QString>{u"s1"_qs, u"T1"_qs, u"s2"_qs, u"other"_qs};
    }

    void versionsOneAndTwoFollowedSignals()
    {
        QFETCH(qint64, version);
        QFETCH(QList<QString>, following);

        InformationWorkspace workspace;
        workspace.version = version;
        workspace.following = {u"s1"_qs, u"T1"_qs, u"s2"_qs, u"other"_qs};

        const InformationWorkspace current = migrated(workspace, catalog()).value();
        QCOMPARE(current.version, 3);
        QCOMPARE(current.following, following);
    }

    void hiddenIdsBecomeVersionKeys()
    {
        for (const qint64 version : {1, 2, 3}) {
            InformationWorkspace workspace;
            workspace.version = version;
            workspace.hidden = {
                u"s1"_qs, u"s1@old"_qs, u"other"_qs, u"a@b"_qs, u"s1@2025-01-02T03:04:05Z"_qs,
                u"s2"_qs};

            QCOMPARE(migrated(workspace, catalog()).value().hidden,
                     (QList<QString>{u"s1@2025-01-02T03:04:05Z"_qs, u"s1@old"_qs, u"other"_qs,
                                     u"a@b"_qs, u"s2@2025-02-02T03:04:05.678Z"_qs}));
        }
    }

    void migrationLeavesTheRest()
    {
        InformationWorkspace workspace = workspaceToStore();
        workspace.version = 1;
        workspace.seenTargets = {u"s1"_qs};

        InformationWorkspace wanted = workspace;
        wanted.version = 3;
        QCOMPARE(migrated(workspace, catalog()).value(), wanted);
    }

    void savingCleansACopy()
    {
        const MemoryFileManager fileManager;
        InformationWorkspace workspace;
        workspace.following = {u"a"_qs, u"b"_qs, u"a"_qs};
        const InformationWorkspace before = workspace;

        QVERIFY(repository.save(workspace, fileManager));

        QCOMPARE(workspace, before);
        QCOMPARE(fileManager.files.value(filePath).count("\"a\""), 1);
    }

    void savingWritesTheVersionAsItStands()
    {
        const MemoryFileManager fileManager;
        InformationWorkspace workspace;
        workspace.version = 2;

        QVERIFY(repository.save(workspace, fileManager));

        QVERIFY(fileManager.files.value(filePath).contains("\"version\": 2"));
    }

    void savingOverWhatWasReadRefusesAnythingElse_data()
    {
        QTest::addColumn<std::optional<QByteArray>>("stored");
        QTest::addColumn<std::optional<QByteArray>>("read");

        const std::optional<QByteArray> none;
        const std::optional<QByteArray> one("{}");
        const std::optional<QByteArray> another("{ }");
        QTest::newRow("as read") << one << one;
        QTest::newRow("no file yet") << none << none;
        QTest::newRow("another") << another << one;
        QTest::newRow("gone") << none << one;
        QTest::newRow("come") << one << none;
    }

    void savingOverWhatWasReadRefusesAnythingElse()
    {
        QFETCH(const std::optional<QByteArray>, stored);
        QFETCH(const std::optional<QByteArray>, read);
        MemoryFileManager fileManager;
        if (stored) {
            fileManager.files.insert(filePath, *stored);
        }

        const auto saved = repository.saveOver(read, workspaceToStore(), fileManager);

        QCOMPARE(saved.has_value(), stored == read);
        QCOMPARE(fileManager.files.value(filePath), saved.value_or(stored.value_or(QByteArray())));
        if (!saved) {
            QCOMPARE(saved.error().reason, FileError::Reason::ChangedMeanwhile);
        }
    }

    void keepsOneFileADay_data()
    {
        QTest::addColumn<std::optional<QDateTime>>("keptAt");
        QTest::addColumn<bool>("isKept");

        QTest::newRow("the first of all") << std::optional<QDateTime>() << true;
        QTest::newRow("yesterday's last second")
            << std::optional(QDateTime(QDate(2026, 9, 1), QTime(23, 59, 59))) << true;
        QTest::newRow("today's first second")
            << std::optional(QDateTime(QDate(2026, 9, 2), QTime(0, 0))) << false;
        QTest::newRow("today's last second")
            << std::optional(QDateTime(QDate(2026, 9, 2), QTime(23, 59, 59))) << false;
        QTest::newRow("the clock was ahead")
            << std::optional(QDateTime(QDate(2026, 9, 3), QTime(0, 0))) << true;
    }

    void keepsOneFileADay()
    {
        QFETCH(const std::optional<QDateTime>, keptAt);
        QFETCH(const bool, isKept);
        const auto seconds = [](const QDateTime& time) {
            return std::chrono::sys_seconds(std::chrono::seconds(time.toSecsSinceEpoch()));
        };
        MemoryFileManager fileManager;
        fileManager.files.insert(previousPath, "old");
        if (keptAt) {
            fileManager.times.insert(previousPath, seconds(*keptAt));
        }

        repository.keepPrevious("new", seconds(QDateTime(QDate(2026, 9, 2), QTime(12, 0))),
                                fileManager);

        QCOMPARE(fileManager.files.value(previousPath), QByteArray(isKept ? "new" : "old"));
    }

    void withoutItsFolderNothingIsSaved()
    {
        MemoryFileManager fileManager;
        fileManager.writeFailure = FileError{FileError::Reason::NoSpace};

        const auto saved = repository.save(workspaceToStore(), fileManager);
        QVERIFY(!saved);
        QCOMPARE(saved.error(), *fileManager.writeFailure);
    }

    void aFailedSaveKeepsTheOldFile()
    {
        MemoryFileManager fileManager = holding("{}");
        const FileError full{FileError::Reason::NoSpace};
        fileManager.writeFailures.insert(filePath, full);

        const auto saved = repository.save(workspaceToStore(), fileManager);
        QVERIFY(!saved);
        QCOMPARE(saved.error(), full);
        QCOMPARE(fileManager.files.value(filePath), QByteArray("{}"));
    }
};

TEST_SUBJECT(InformationWorkspaceRepositoryTest)
#include "InformationWorkspaceRepositoryTest.moc"
