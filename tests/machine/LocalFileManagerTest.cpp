// SPDX-License-Identifier: Apache-2.0

#include "LocalFileManager.h"

#include "FileCallHook.h"
#include "FileTree.h"
#include "OrdinaryUser.h"
#include "Subject.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

using Reason = FileError::Reason;

const LocalFileManager fileManager(std::nullopt);

} // namespace

class LocalFileManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(actAsOrdinaryUser()); }

    void theEnvironmentNamesTheDataDirectory_data()
    {
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("home");
        QTest::addColumn<std::optional<QString>>("directory");

        const auto add = [](const char* title, const QString& data, const QString& home,
                            const std::optional<QString>& directory) {
            QTest::newRow(title) << data << home << directory;
        };
        add("data", u"/data"_qs, u"/home/reader"_qs, u"/data"_qs);
        add("home", {}, u"/home/reader"_qs, u"/home/reader/.local/share"_qs);
        add("relative data", u"data"_qs, u"/home/reader"_qs, u"/home/reader/.local/share"_qs);
        add("relative both", u"data"_qs, u"reader"_qs, std::nullopt);
        add("neither", {}, {}, std::nullopt);
    }

    void theEnvironmentNamesTheDataDirectory()
    {
        QFETCH(QString, data);
        QFETCH(QString, home);
        QFETCH(std::optional<QString>, directory);

        QProcessEnvironment environment;
        environment.insert(u"XDG_DATA_HOME"_qs, data);
        environment.insert(u"HOME"_qs, home);

        QCOMPARE(LocalFileManager::applicationSupportDirectory(environment), directory);
        QCOMPARE(LocalFileManager(directory).applicationSupportDirectory(), directory);
    }

    void anEmptyEnvironmentNamesNone()
    {
        QCOMPARE(LocalFileManager::applicationSupportDirectory(QProcessEnvironment()),
                 std::nullopt);
    }

    void readsWholeFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");

        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("text") << QByteArray("text");
        QTest::newRow("any bytes") << QByteArray("\xff\0\n", 3);
        QTest::newRow("long") << QByteArray(3'000'000, 'x');
    }

    void readsWholeFiles()
    {
        QFETCH(QByteArray, bytes);
        const QTemporaryDir folder;
        writeFile(folder.filePath(u"file"_qs), bytes);

        const auto read = fileManager.readFile(folder.filePath(u"file"_qs));
        QVERIFY(read);
        QCOMPARE(*read, std::optional(bytes));
    }

    void readsAFileWhoseSizeIsNotKnownBefore()
    {
        const auto read = fileManager.readFile(u"/proc/self/status"_qs);
        QVERIFY(read && *read);
        QVERIFY((*read)->startsWith("Name:"));
        QVERIFY((*read)->endsWith('\n'));
    }

    void readingGoesOnAfterSignalsAndShortReads()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file"_qs);
        writeFile(path, "some bytes");
        bool isInterrupted = false;
        const FileCallHook hook{.before =
                                    [&isInterrupted](int, const char* name) {
                                        isInterrupted =
                                            QByteArrayView(name) == "read" && !isInterrupted;
                                        return isInterrupted ? std::optional(EINTR) : std::nullopt;
                                    },
                                .longestTransfer = 3};

        hook.during([&] {
            QCOMPARE(fileManager.readFile(path).value(), std::optional(QByteArray("some bytes")));
        });
    }

    void aDiskThatCannotBeReadIsAnError_data()
    {
        QTest::addColumn<QByteArray>("call");

        QTest::newRow("open") << QByteArray("open");
        QTest::newRow("read") << QByteArray("read");
    }

    void aDiskThatCannotBeReadIsAnError()
    {
        QFETCH(QByteArray, call);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file"_qs);
        writeFile(path, "text");
        const FileCallHook hook{.before = [&call](int, const char* name) {
            return call == name ? std::optional(EIO) : std::nullopt;
        }};

        hook.during([&] {
            const auto read = fileManager.readFile(path);
            QVERIFY(!read);
            QCOMPARE(read.error(), FileError::fromSystemError(EIO));
        });
    }

    void noFileIsNoError_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("missing") << u"missing"_qs;
        QTest::newRow("in a missing folder") << u"missing/file"_qs;
        QTest::newRow("in a file") << u"file/file"_qs;
        QTest::newRow("dangling link") << u"dangling"_qs;
    }

    void noFileIsNoError()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        writeFile(folder.filePath(u"file"_qs), "text");
        QVERIFY(QFile::link(folder.filePath(u"nowhere"_qs), folder.filePath(u"dangling"_qs)));

        const auto read = fileManager.readFile(folder.filePath(name));
        QVERIFY(read);
        QVERIFY(!*read);
    }

    void aLinkIntoAMissingFolderIsAnError_data()
    {
        QTest::addColumn<QString>("target");

        QTest::newRow("missing") << u"unplugged/file"_qs;
        QTest::newRow("through another link") << u"chain"_qs;
        QTest::newRow("in a file") << u"file/file"_qs;
    }

    // A start that took it for no file wrote over the real one when the disk was back.
    void aLinkIntoAMissingFolderIsAnError()
    {
        QFETCH(QString, target);
        const QTemporaryDir folder;
        writeFile(folder.filePath(u"file"_qs), "text");
        makeLink(u"unplugged/file"_qs, folder.filePath(u"chain"_qs));
        makeLink(target, folder.filePath(u"link"_qs));

        const auto read = fileManager.readFile(folder.filePath(u"link"_qs));
        QVERIFY(!read);
        QCOMPARE(read.error().reason, Reason::FolderMissing);
    }

    void readsOnlyOrdinaryFiles_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("folder") << u"folder"_qs;
        QTest::newRow("pipe") << u"pipe"_qs;
        QTest::newRow("device") << u"device"_qs;
    }

    void readsOnlyOrdinaryFiles()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_qs));
        QVERIFY(QFile::link(u"/dev/zero"_qs, folder.filePath(u"device"_qs)));
        QCOMPARE(::mkfifo(QFile::encodeName(folder.filePath(u"pipe"_qs)).constData(), 0600), 0);

        // Nobody writes into the pipe: reading it would wait for ever.
        const auto read = fileManager.readFile(folder.filePath(name));
        QVERIFY(!read);
        QCOMPARE(read.error().reason, Reason::NotARegularFile);
    }

    void aFileThatMayNotBeReadIsAnError()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file"_qs);
        writeFile(path, "text");
        QVERIFY(QFile::setPermissions(path, QFile::Permissions()));

        const auto read = fileManager.readFile(path);
        QVERIFY(!read);
        QCOMPARE(read.error().reason, Reason::ReadPermissionDenied);
    }

    void aFileTooLongForAnyOfOursIsAnError()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file"_qs);
        writeFile(path, {});
        QVERIFY(QFile::resize(path, LocalFileManager::maximumFileBytes + 1));

        const auto read = fileManager.readFile(path);
        QVERIFY(!read);
        QCOMPARE(read.error(), FileError::fromSystemError(EFBIG));
    }

    void makesEveryMissingFolderForThisUserOnly()
    {
        const QTemporaryDir root;
        const mode_t mask = ::umask(0);
        const auto made = fileManager.createDirectory(root.filePath(u"a/b/c"_qs));
        ::umask(mask);

        QVERIFY(made);
        for (const QString& name : {u"a"_qs, u"a/b"_qs, u"a/b/c"_qs}) {
            QVERIFY(QFileInfo(root.filePath(name)).isDir());
            QCOMPARE(modeOf(root.filePath(name)), 0700);
        }
    }

    void eachNewFolderIsSyncedInTheOneAboveIt()
    {
        const QTemporaryDir root;
        int syncs = 0;
        const FileCallHook hook{.before = [&syncs](int, const char* name) {
            syncs += QByteArrayView(name) == "fsync" ? 1 : 0;
            return std::optional<int>();
        }};

        hook.during([&] { QVERIFY(fileManager.createDirectory(root.filePath(u"a/b/c"_qs))); });
        QCOMPARE(syncs, 3);

        hook.during([&] { QVERIFY(fileManager.createDirectory(root.filePath(u"a/b/c"_qs))); });
        QCOMPARE(syncs, 3);
    }

    void aFolderThatCannotBeSyncedIsThereAllTheSame()
    {
        const QTemporaryDir root;
        const FileCallHook hook{.before = [](int, const char*) { return std::optional(EIO); }};

        hook.during([&] { QVERIFY(fileManager.createDirectory(root.filePath(u"a/b"_qs))); });

        QVERIFY(QFileInfo(root.filePath(u"a/b"_qs)).isDir());
    }

    void aFolderThatIsThereStaysAsItIs_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("folder") << u"folder"_qs;
        QTest::newRow("link to a folder") << u"link"_qs;
        QTest::newRow("slash at the end") << u"folder/"_qs;
        QTest::newRow("two slashes") << u"/folder"_qs;
    }

    void aFolderThatIsThereStaysAsItIs()
    {
        QFETCH(QString, name);
        const QTemporaryDir root;
        const QString folder = root.filePath(u"folder"_qs);
        QVERIFY(QDir(root.path()).mkdir(u"folder"_qs));
        QVERIFY(QFile::link(folder, root.filePath(u"link"_qs)));
        const int mode = modeOf(folder);

        QVERIFY(fileManager.createDirectory(root.path() + u'/' + name));

        QCOMPARE(modeOf(folder), mode);
        QCOMPARE(namesIn(root.path()), (QStringList{u"folder"_qs, u"link"_qs}));
    }

    void aPathThatEndsInASlashIsMade()
    {
        const QTemporaryDir root;

        QVERIFY(fileManager.createDirectory(root.filePath(u"a//b/"_qs)));

        QVERIFY(QFileInfo(root.filePath(u"a/b"_qs)).isDir());
    }

    void aFolderThatCannotBeMadeIsAnError_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("reason");

        const auto add = [](const char* title, const QString& name, Reason reason) {
            QTest::newRow(title) << name << static_cast<int>(reason);
        };
        add("a file in its place", u"file"_qs, Reason::FolderMissing);
        add("a file above it", u"file/a/b"_qs, Reason::FolderMissing);
        add("a dangling link in its place", u"dangling"_qs, Reason::FolderMissing);
        add("a closed folder above it", u"closed/a/b"_qs, Reason::PermissionDenied);
    }

    void aFolderThatCannotBeMadeIsAnError()
    {
        QFETCH(QString, name);
        QFETCH(int, reason);
        const QTemporaryDir root;
        writeFile(root.filePath(u"file"_qs), "text");
        QVERIFY(QFile::link(root.filePath(u"nowhere"_qs), root.filePath(u"dangling"_qs)));
        QVERIFY(QDir(root.path()).mkdir(u"closed"_qs));
        QVERIFY(
            QFile::setPermissions(root.filePath(u"closed"_qs), QFile::ReadOwner | QFile::ExeOwner));
        const QStringList namesBefore = namesIn(root.path());

        const auto made = fileManager.createDirectory(root.filePath(name));
        QVERIFY(!made);
        QCOMPARE(static_cast<int>(made.error().reason), reason);

        QCOMPARE(namesIn(root.path()), namesBefore);
        QCOMPARE(contentOf(root.filePath(u"file"_qs)), QByteArray("text"));
    }

    void whatIsReplacedIsRead()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file"_qs);

        QVERIFY(fileManager.replaceFile(path, "one"));
        QVERIFY(fileManager.replaceFile(path, "two"));

        QCOMPARE(fileManager.readFile(path).value(), std::optional(QByteArray("two")));
        QCOMPARE(modeOf(path), 0600);
    }

    void whatWasReadIsReplaced_data()
    {
        QTest::addColumn<std::optional<QByteArray>>("stored");
        QTest::addColumn<std::optional<QByteArray>>("read");

        const std::optional<QByteArray> none;
        const std::optional<QByteArray> bytes("bytes");
        QTest::newRow("as read") << bytes << bytes;
        QTest::newRow("no file") << none << none;
        QTest::newRow("another of the same length") << std::optional(QByteArray("BYTES")) << bytes;
        QTest::newRow("gone") << none << bytes;
        QTest::newRow("come") << bytes << none;
    }

    void whatWasReadIsReplaced()
    {
        QFETCH(const std::optional<QByteArray>, stored);
        QFETCH(const std::optional<QByteArray>, read);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file"_qs);
        if (stored) {
            writeFile(path, *stored);
        }

        const auto replaced = fileManager.replaceReadFile(path, read, "new");

        QCOMPARE(replaced.has_value(), stored == read);
        QCOMPARE(fileManager.readFile(path).value(), replaced ? "new" : stored);
        if (!replaced) {
            QCOMPARE(replaced.error().reason, Reason::ChangedMeanwhile);
        }
    }

    void whatMayNotBeReadAnyMoreIsNotReplaced()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file"_qs);
        writeFile(path, "bytes");
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0), 0);

        const auto replaced = fileManager.replaceReadFile(path, "bytes", "new");

        QCOMPARE(replaced.error().reason, Reason::ReadPermissionDenied);
    }

    void tellsWhenAFileWasWritten()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file"_qs);
        QCOMPARE(fileManager.writtenAt(path).value(), std::nullopt);
        writeFile(path, "bytes");

        QFile file(path);
        const std::chrono::sys_seconds time{std::chrono::seconds(1'788'314'400)};
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::fromSecsSinceEpoch(time.time_since_epoch().count()),
                                 QFileDevice::FileModificationTime));
        QCOMPARE(fileManager.writtenAt(path).value(), time);
        QVERIFY(!fileManager.writtenAt(QString(5000, u'x')));
    }

    void removesLeftovers()
    {
        const QTemporaryDir folder;
        writeFile(folder.filePath(u"file"_qs), "text");
        writeFile(folder.filePath(u".corvanite-0123456789abcdef.tmp"_qs), "left over");

        fileManager.removeLeftovers(folder.path());

        QCOMPARE(namesIn(folder.path()), QStringList{u"file"_qs});
    }
};

TEST_SUBJECT(LocalFileManagerTest)
#include "LocalFileManagerTest.moc"
