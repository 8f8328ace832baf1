// SPDX-License-Identifier: Apache-2.0

#include "AtomicFile.h"

#include "FileCallHook.h"
#include "FileTree.h"
#include "FolderWithFile.h"
#include "Subject.h"

#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <sys/wait.h>

namespace {

using Reason = FileError::Reason;

FileCallHook failingAt(int failingNumber, int error)
{
    return {.before = [=](int number, const char*) {
        return number == failingNumber ? std::optional(error) : std::nullopt;
    }};
}

// The names of the calls that replace a file, in order.
QList<QByteArray> callsOfAReplacement()
{
    const FolderWithFile folder;
    QList<QByteArray> names;
    const FileCallHook hook{.before = [&names](int, const char* name) {
        names.append(name);
        return std::optional<int>();
    }};
    hook.during([&folder] { QVERIFY(AtomicFile::replace(folder.file(), newBytes)); });
    return names;
}

// The number of the first call of that name, from 1.
int stepOf(const char* name)
{
    return static_cast<int>(callsOfAReplacement().indexOf(name)) + 1;
}

int lastStep()
{
    return static_cast<int>(callsOfAReplacement().size());
}

// A test's data: a row for each of these calls.
void addSteps(int first, int last)
{
    QTest::addColumn<int>("step");
    const QList<QByteArray> calls = callsOfAReplacement();
    for (int step = first; step <= last; ++step) {
        QTest::addRow("%s (%d)", calls.at(step - 1).constData(), step) << step;
    }
}

} // namespace

/// What is left where a system call fails, is interrupted or is the program's last.
class AtomicFileFaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theStepsComeInTheirOrder()
    {
        QCOMPARE(callsOfAReplacement(),
                 (QList<QByteArray>{"lstat", "open", "openat", "write", "fsync", "close",
                                    "renameat", "fsync", "close"}));
    }

    void aFailureAtAnyStepKeepsTheOldFile_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("error");

        const QList<QByteArray> calls = callsOfAReplacement();
        for (int step = 1; step <= stepOf("renameat"); ++step) {
            for (const int error : {ENOSPC, EIO, EACCES, EROFS, EDQUOT}) {
                QTest::addRow("%s (%d): %s", calls.at(step - 1).constData(), step,
                              std::strerror(error))
                    << step << error;
            }
        }
    }

    void aFailureAtAnyStepKeepsTheOldFile()
    {
        QFETCH(int, step);
        QFETCH(int, error);
        const FolderWithFile folder;

        failingAt(step, error).during([&] {
            const auto replaced = AtomicFile::replace(folder.file(), newBytes);
            QVERIFY(!replaced);
            QCOMPARE(replaced.error(), FileError::fromSystemError(error));
        });

        QVERIFY(folder.holdsOnly(oldBytes));
    }

    void aFailureAtAnyStepLeavesNothingOfANewFile_data() { addSteps(1, stepOf("renameat")); }

    void aFailureAtAnyStepLeavesNothingOfANewFile()
    {
        QFETCH(int, step);
        const QTemporaryDir folder;

        failingAt(step, EIO).during(
            [&] { QVERIFY(!AtomicFile::replace(folder.filePath(u"file"_qs), newBytes)); });

        QCOMPARE(namesIn(folder.path()), QStringList());
    }

    void onceRenamedTheFileCountsAsReplaced_data() { addSteps(stepOf("renameat") + 1, lastStep()); }

    void onceRenamedTheFileCountsAsReplaced()
    {
        QFETCH(int, step);
        const FolderWithFile folder;

        failingAt(step, EIO).during([&] { QVERIFY(AtomicFile::replace(folder.file(), newBytes)); });

        QVERIFY(folder.holdsOnly(newBytes));
    }

    void signalsDoNotDisturb_data()
    {
        QTest::addColumn<int>("step");

        const QList<QByteArray> calls = callsOfAReplacement();
        for (int step = 1; step <= calls.size(); ++step) {
            const QByteArray& name = calls.at(step - 1);
            if (name == "write" || name == "fsync" || name == "close") {
                QTest::addRow("%s (%d)", name.constData(), step) << step;
            }
        }
    }

    void signalsDoNotDisturb()
    {
        QFETCH(int, step);
        const FolderWithFile folder;

        failingAt(step, EINTR).during([&] {
            QVERIFY(AtomicFile::replace(folder.file(), newBytes));
        });

        QVERIFY(folder.holdsOnly(newBytes));
    }

    void aTakenNameIsTriedAgainWithAnother()
    {
        const FolderWithFile folder;

        failingAt(stepOf("openat"), EEXIST).during([&] {
            QVERIFY(AtomicFile::replace(folder.file(), newBytes));
        });

        QVERIFY(folder.holdsOnly(newBytes));
    }

    void shortWritesGoOn()
    {
        const FolderWithFile folder;
        FileCallHook hook;
        hook.longestTransfer = 7;

        hook.during([&] { QVERIFY(AtomicFile::replace(folder.file(), newBytes)); });

        QVERIFY(folder.holdsOnly(newBytes));
    }

    void aDiskThatFillsUpAfterAShortWriteKeepsTheOldFile()
    {
        const FolderWithFile folder;
        FileCallHook hook = failingAt(stepOf("write") + 1, ENOSPC);
        hook.longestTransfer = 7;

        hook.during([&] {
            QCOMPARE(failureOf(AtomicFile::replace(folder.file(), newBytes)),
                     std::optional(Reason::NoSpace));
        });

        QVERIFY(folder.holdsOnly(oldBytes));
    }

    void aFolderThatMovesAwayMeanwhileTakesTheFileAlong()
    {
        const QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkdir(u"here"_qs));
        const FileCallHook hook{.before = [&root](int, const char* name) {
            if (QByteArrayView(name) == "openat") {
                QDir(root.path()).rename(u"here"_qs, u"there"_qs);
            }
            return std::optional<int>();
        }};

        hook.during(
            [&] { QVERIFY(AtomicFile::replace(root.filePath(u"here/file"_qs), newBytes)); });

        QCOMPARE(contentOf(root.filePath(u"there/file"_qs)), newBytes);
        QCOMPARE(namesIn(root.path()), QStringList{u"there"_qs});
    }

    void aFolderThatIsRemovedMeanwhileIsMissing()
    {
        const QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkdir(u"here"_qs));
        const FileCallHook hook{.before = [&root](int, const char* name) {
            if (QByteArrayView(name) == "openat") {
                QDir(root.path()).rmdir(u"here"_qs);
            }
            return std::optional<int>();
        }};

        hook.during([&] {
            QCOMPARE(failureOf(AtomicFile::replace(root.filePath(u"here/file"_qs), newBytes)),
                     std::optional(Reason::FolderMissing));
        });
    }

    void aReplacementThatLosesItsTemporaryFileKeepsTheOldFile()
    {
        const FolderWithFile folder;
        const FileCallHook hook{.before = [&folder](int, const char* name) {
            if (QByteArrayView(name) == "renameat") {
                AtomicFile::removeLeftovers(folder.path());
            }
            return std::optional<int>();
        }};

        hook.during([&] { QVERIFY(!AtomicFile::replace(folder.file(), newBytes)); });
        QVERIFY(folder.holdsOnly(oldBytes));

        QVERIFY(AtomicFile::replace(folder.file(), newBytes));
        QVERIFY(folder.holdsOnly(newBytes));
    }

    void aKillAtAnyStepLeavesOneWholeFile_data() { addSteps(1, lastStep()); }

    void aKillAtAnyStepLeavesOneWholeFile()
    {
        QFETCH(int, step);
        const bool isReplaced = step > stepOf("renameat");
        const FolderWithFile folder;

        const pid_t child = ::fork();
        if (child == 0) {
            const FileCallHook hook{.before = [step](int number, const char*) {
                if (number == step) {
                    std::raise(SIGKILL);
                }
                return std::optional<int>();
            }};
            hook.during([&] { Q_UNUSED(AtomicFile::replace(folder.file(), newBytes)); });
            ::_exit(0);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);

        QCOMPARE(contentOf(folder.file()), isReplaced ? newBytes : oldBytes);
        AtomicFile::removeLeftovers(folder.path());
        QVERIFY(folder.holdsOnly(isReplaced ? newBytes : oldBytes));
    }
};

TEST_SUBJECT(AtomicFileFaultTest)
#include "AtomicFileFaultTest.moc"
