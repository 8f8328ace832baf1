#include "AtomicFile.h"

#include "FileCallHook.h"
#include "FileTree.h"
#include "OrdinaryUser.h"
#include "Subject.h"

#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>

namespace {

using Reason = FileError::Reason;

const QByteArray oldBytes("old bytes");
const QByteArray newBytes("the new bytes, which are longer");

// A folder with one file in it, "file", that holds the old bytes.
class Folder
{
public:
    Folder() { writeFile(file(), oldBytes); }

    QString path() const { return m_folder.path(); }
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString file() const { return path(u"file"_qs); }

    bool holdsOnly(const QByteArray& bytes) const
    {
        return namesIn(path()) == QStringList{u"file"_qs} && contentOf(file()) == bytes;
    }

private:
    QTemporaryDir m_folder;
};

FileCallHook failingAt(int failingNumber, int error)
{
    return {.before = [=](int number, const char*) {
        return number == failingNumber ? std::optional(error) : std::nullopt;
    }};
}

// The names of the calls that replace a file, in order.
QList<QByteArray> callsOfAReplacement()
{
    const Folder folder;
    QList<QByteArray> names;
    const FileCallHook hook{.before = [&names](int, const char* name) {
        names.append(name);
        return std::optional<int>();
    }};
    hook.during([&folder] { QVERIFY(AtomicFile::replace(folder.file(), newBytes)); });
    return names;
}

std::optional<Reason> failureOf(const std::expected<void, FileError>& result)
{
    return result ? std::nullopt : std::optional(result.error().reason);
}

} // namespace

class AtomicFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(actAsOrdinaryUser()); }

    void makesAFileForThisUserOnly()
    {
        const QTemporaryDir folder;
        const mode_t mask = ::umask(0);
        const auto made = AtomicFile::replace(folder.filePath(u"file"_qs), newBytes);
        ::umask(mask);

        QVERIFY(made);
        QCOMPARE(contentOf(folder.filePath(u"file"_qs)), newBytes);
        QCOMPARE(modeOf(folder.filePath(u"file"_qs)), 0600);
        QCOMPARE(namesIn(folder.path()), QStringList{u"file"_qs});
    }

    void replacesAFile_data()
    {
        QTest::addColumn<QByteArray>("bytes");

        QTest::newRow("longer") << newBytes;
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("long") << QByteArray(5'000'000, 'x');
    }

    void replacesAFile()
    {
        QFETCH(QByteArray, bytes);
        const Folder folder;
        QVERIFY(QFile::setPermissions(folder.file(), QFile::ReadOwner | QFile::ReadOther));

        QVERIFY(AtomicFile::replace(folder.file(), bytes));

        QVERIFY(folder.holdsOnly(bytes));
        QCOMPARE(modeOf(folder.file()), 0600);
    }

    void whoReadsTheOldFileKeepsItWhole()
    {
        const Folder folder;
        QFile reader(folder.file());
        QVERIFY(reader.open(QIODevice::ReadOnly));

        QVERIFY(AtomicFile::replace(folder.file(), newBytes));

        QCOMPARE(reader.readAll(), oldBytes);
    }

    void replacesWhatALinkLeadsTo_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("isMade");

        QTest::newRow("relative") << u"../there/file"_qs << false;
        QTest::newRow("through another link") << u"chain"_qs << false;
        QTest::newRow("to a missing file") << u"../there/made"_qs << true;
        QTest::newRow("through another link to a missing file") << u"dangling-chain"_qs << true;
    }

    void replacesWhatALinkLeadsTo()
    {
        QFETCH(QString, target);
        QFETCH(bool, isMade);
        const QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(u"here"_qs) && QDir(root.path()).mkpath(u"there"_qs));
        writeFile(root.filePath(u"there/file"_qs), oldBytes);
        link(root.filePath(u"there/file"_qs), root.filePath(u"here/chain"_qs));
        link(u"../there/made"_qs, root.filePath(u"here/dangling-chain"_qs));
        link(target, root.filePath(u"here/link"_qs));
        const QStringList namesBefore = namesIn(root.filePath(u"here"_qs));

        QVERIFY(AtomicFile::replace(root.filePath(u"here/link"_qs), newBytes));

        QVERIFY(QFileInfo(root.filePath(u"here/link"_qs)).isSymLink());
        QCOMPARE(contentOf(root.filePath(u"here/link"_qs)), newBytes);
        QCOMPARE(namesIn(root.filePath(u"here"_qs)), namesBefore);
        QCOMPARE(namesIn(root.filePath(u"there"_qs)),
                 isMade ? (QStringList{u"file"_qs, u"made"_qs}) : QStringList{u"file"_qs});
    }

    void refusesWhatIsNoOrdinaryFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("reason");

        const auto add = [](const char* title, const QString& name, Reason reason) {
            QTest::newRow(title) << name << static_cast<int>(reason);
        };
        add("folder", u"folder"_qs, Reason::NotARegularFile);
        add("pipe", u"pipe"_qs, Reason::NotARegularFile);
        add("device", u"/dev/full"_qs, Reason::NotARegularFile);
        add("link to a folder", u"folder-link"_qs, Reason::NotARegularFile);
        add("link to a device", u"device-link"_qs, Reason::NotARegularFile);
        add("link to itself", u"loop"_qs, Reason::NotARegularFile);
        add("in a missing folder", u"missing/file"_qs, Reason::FolderMissing);
        add("in a file", u"file/file"_qs, Reason::FolderMissing);
        add("link into a missing folder", u"lost-link"_qs, Reason::FolderMissing);
    }

    void refusesWhatIsNoOrdinaryFile()
    {
        QFETCH(QString, name);
        QFETCH(int, reason);
        const Folder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_qs));
        QCOMPARE(::mkfifo(QFile::encodeName(folder.path(u"pipe"_qs)).constData(), 0600), 0);
        link(u"folder"_qs, folder.path(u"folder-link"_qs));
        link(u"/dev/full"_qs, folder.path(u"device-link"_qs));
        link(u"loop"_qs, folder.path(u"loop"_qs));
        link(u"missing/file"_qs, folder.path(u"lost-link"_qs));
        const QStringList namesBefore = namesIn(folder.path());

        const QString path = name.startsWith(u'/') ? name : folder.path(name);
        QCOMPARE(failureOf(AtomicFile::replace(path, newBytes)), std::optional(Reason(reason)));

        QCOMPARE(namesIn(folder.path()), namesBefore);
        QCOMPARE(contentOf(folder.file()), oldBytes);
    }

    void aFolderThatMayNotBeWrittenKeepsTheFile()
    {
        const Folder folder;
        QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));

        const auto replaced = AtomicFile::replace(folder.file(), newBytes);

        QVERIFY(QFile::setPermissions(folder.path(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(failureOf(replaced), std::optional(Reason::PermissionDenied));
        QVERIFY(folder.holdsOnly(oldBytes));
    }

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
        const int stepsToTheRename = static_cast<int>(calls.indexOf("renameat")) + 1;
        for (int step = 1; step <= stepsToTheRename; ++step) {
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
        const Folder folder;

        failingAt(step, error).during([&] {
            const auto replaced = AtomicFile::replace(folder.file(), newBytes);
            QVERIFY(!replaced);
            QCOMPARE(replaced.error(), FileError::fromSystemError(error));
        });

        QVERIFY(folder.holdsOnly(oldBytes));
    }

    void aFailureAtAnyStepLeavesNothingOfANewFile()
    {
        const int stepsToTheRename =
            static_cast<int>(callsOfAReplacement().indexOf("renameat")) + 1;
        for (int step = 1; step <= stepsToTheRename; ++step) {
            const QTemporaryDir folder;
            failingAt(step, EIO).during(
                [&] { QVERIFY(!AtomicFile::replace(folder.filePath(u"file"_qs), newBytes)); });
            QCOMPARE(namesIn(folder.path()), QStringList());
        }
    }

    void onceRenamedTheFileCountsAsReplaced()
    {
        const QList<QByteArray> calls = callsOfAReplacement();
        for (qsizetype step = calls.indexOf("renameat") + 2; step <= calls.size(); ++step) {
            const Folder folder;
            failingAt(static_cast<int>(step), EIO).during([&] {
                QVERIFY(AtomicFile::replace(folder.file(), newBytes));
            });
            QVERIFY(folder.holdsOnly(newBytes));
        }
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
        const Folder folder;

        failingAt(step, EINTR).during([&] {
            QVERIFY(AtomicFile::replace(folder.file(), newBytes));
        });

        QVERIFY(folder.holdsOnly(newBytes));
    }

    void aTakenNameIsTriedAgainWithAnother()
    {
        const Folder folder;

        failingAt(static_cast<int>(callsOfAReplacement().indexOf("openat")) + 1, EEXIST)
            .during([&] { QVERIFY(AtomicFile::replace(folder.file(), newBytes)); });

        QVERIFY(folder.holdsOnly(newBytes));
    }

    void shortWritesGoOn()
    {
        const Folder folder;
        FileCallHook hook;
        hook.longestTransfer = 7;

        hook.during([&] { QVERIFY(AtomicFile::replace(folder.file(), newBytes)); });

        QVERIFY(folder.holdsOnly(newBytes));
    }

    void aDiskThatFillsUpAfterAShortWriteKeepsTheOldFile()
    {
        const Folder folder;
        FileCallHook hook =
            failingAt(static_cast<int>(callsOfAReplacement().indexOf("write")) + 2, ENOSPC);
        hook.longestTransfer = 7;

        hook.during([&] {
            QCOMPARE(failureOf(AtomicFile::replace(folder.file(), newBytes)),
                     std::optional(Reason::NoSpace));
        });

        QVERIFY(folder.holdsOnly(oldBytes));
    }

    void aLimitOfTheFileSizeKeepsTheOldFile()
    {
        const Folder folder;
        rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{100'000, before.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);

        const auto replaced = AtomicFile::replace(folder.file(), QByteArray(150'000, 'x'));

        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
        std::signal(SIGXFSZ, handler);
        QVERIFY(!replaced);
        QCOMPARE(replaced.error(), FileError::fromSystemError(EFBIG));
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

    void aKillAtAnyStepLeavesOneWholeFile_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<bool>("isReplaced");

        const QList<QByteArray> calls = callsOfAReplacement();
        for (int step = 1; step <= calls.size(); ++step) {
            QTest::addRow("before %s (%d)", calls.at(step - 1).constData(), step)
                << step << (step > calls.indexOf("renameat") + 1);
        }
    }

    void aKillAtAnyStepLeavesOneWholeFile()
    {
        QFETCH(int, step);
        QFETCH(bool, isReplaced);
        const Folder folder;

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

    void onlyOwnLeftoversAreRemoved()
    {
        const Folder folder;
        const QStringList others{u".corvanite-0123456789abcde.tmp"_qs,
                                 u".corvanite-0123456789ABCDEF.tmp"_qs,
                                 u".corvanite-0123456789abcdeg.tmp"_qs,
                                 u".corvanite-0123456789abcdef.tmp.txt"_qs,
                                 u"corvanite-0123456789abcdef.tmp"_qs,
                                 u".corvanite-0123456789abcdef"_qs,
                                 u".lock"_qs,
                                 u"file.tmp"_qs};
        for (const QString& name : others) {
            writeFile(folder.path(name), {});
        }
        QStringList namesBefore = namesIn(folder.path());
        writeFile(folder.path(u".corvanite-0123456789abcdef.tmp"_qs), newBytes);

        AtomicFile::removeLeftovers(folder.path());

        QCOMPARE(namesIn(folder.path()), namesBefore);
    }

    void leftoversAreRemovedWhereALinkLeads_data()
    {
        QTest::addColumn<QString>("target");

        QTest::newRow("absolute") << u"%1/there/file"_qs;
        QTest::newRow("relative") << u"../there/file"_qs;
        QTest::newRow("through another link") << u"../chain"_qs;
        QTest::newRow("to a missing file") << u"../there/missing"_qs;
    }

    void leftoversAreRemovedWhereALinkLeads()
    {
        QFETCH(QString, target);
        const QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(u"here"_qs) && QDir(root.path()).mkpath(u"there"_qs));
        writeFile(root.filePath(u"there/file"_qs), oldBytes);
        writeFile(root.filePath(u"there/.corvanite-0123456789abcdef.tmp"_qs), newBytes);
        writeFile(root.filePath(u"there/file.tmp"_qs), newBytes);
        link(u"there/file"_qs, root.filePath(u"chain"_qs));
        link(target.contains(u'%') ? target.arg(root.path()) : target,
             root.filePath(u"here/link"_qs));

        AtomicFile::removeLeftovers(root.filePath(u"here"_qs));

        QCOMPARE(namesIn(root.filePath(u"here"_qs)), QStringList{u"link"_qs});
        QCOMPARE(namesIn(root.filePath(u"there"_qs)), (QStringList{u"file"_qs, u"file.tmp"_qs}));
        QCOMPARE(contentOf(root.filePath(u"there/file"_qs)), oldBytes);
    }

    void linksThatLeadToNoFileHaveNoLeftovers()
    {
        const QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(u"here"_qs) && QDir(root.path()).mkpath(u"there"_qs));
        writeFile(root.filePath(u"there/.corvanite-0123456789abcdef.tmp"_qs), newBytes);
        link(u"../there"_qs, root.filePath(u"here/folder"_qs));
        link(u"loop"_qs, root.filePath(u"here/loop"_qs));
        link(u"../nowhere/file"_qs, root.filePath(u"here/lost"_qs));

        AtomicFile::removeLeftovers(root.filePath(u"here"_qs));

        QCOMPARE(namesIn(root.filePath(u"here"_qs)),
                 (QStringList{u"folder"_qs, u"loop"_qs, u"lost"_qs}));
        QCOMPARE(namesIn(root.filePath(u"there"_qs)),
                 QStringList{u".corvanite-0123456789abcdef.tmp"_qs});
    }

    void aReplacementThatLosesItsTemporaryFileKeepsTheOldFile()
    {
        const Folder folder;
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

    void aFileThatFailsTheLastLookStays()
    {
        const Folder folder;

        const auto replaced = AtomicFile::replaceChecked(folder.file(), newBytes, [] {
            return std::unexpected(FileError{Reason::ChangedMeanwhile});
        });

        QCOMPARE(replaced.error().reason, Reason::ChangedMeanwhile);
        QVERIFY(folder.holdsOnly(oldBytes));
    }

    void nobodyReplacesBetweenAnothersLookAndReplacing()
    {
        const Folder folder;
        const auto fine = [] { return std::expected<void, FileError>(); };
        std::optional<FileError> refusal;

        const auto replaced = AtomicFile::replaceChecked(folder.file(), newBytes, [&] {
            if (const auto other = AtomicFile::replaceChecked(folder.file(), "others", fine);
                !other) {
                refusal = other.error();
            }
            return fine();
        });

        QVERIFY(replaced);
        QCOMPARE(refusal, FileError{Reason::InUse});
        QVERIFY(folder.holdsOnly(newBytes));
    }

    void aMissingFolderHasNoLeftovers()
    {
        const QTemporaryDir folder;

        AtomicFile::removeLeftovers(folder.filePath(u"missing"_qs));

        QCOMPARE(namesIn(folder.path()), QStringList());
    }

private:
    static void link(const QString& target, const QString& path)
    {
        QCOMPARE(
            ::symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()),
            0);
    }
};

TEST_SUBJECT(AtomicFileTest)
#include "AtomicFileTest.moc"
