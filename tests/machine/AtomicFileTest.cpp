// SPDX-License-Identifier: Apache-2.0

#include "AtomicFile.h"

#include "FileTree.h"
#include "FolderWithFile.h"
#include "OrdinaryUser.h"
#include "Subject.h"

#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

using Reason = FileError::Reason;

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
        const FolderWithFile folder;
        QVERIFY(QFile::setPermissions(folder.file(), QFile::ReadOwner | QFile::ReadOther));

        QVERIFY(AtomicFile::replace(folder.file(), bytes));

        QVERIFY(folder.holdsOnly(bytes));
        QCOMPARE(modeOf(folder.file()), 0600);
    }

    void whoReadsTheOldFileKeepsItWhole()
    {
        const FolderWithFile folder;
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
        makeLink(root.filePath(u"there/file"_qs), root.filePath(u"here/chain"_qs));
        makeLink(u"../there/made"_qs, root.filePath(u"here/dangling-chain"_qs));
        makeLink(target, root.filePath(u"here/link"_qs));
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
        const FolderWithFile folder;
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_qs));
        QCOMPARE(::mkfifo(QFile::encodeName(folder.path(u"pipe"_qs)).constData(), 0600), 0);
        makeLink(u"folder"_qs, folder.path(u"folder-link"_qs));
        makeLink(u"/dev/full"_qs, folder.path(u"device-link"_qs));
        makeLink(u"loop"_qs, folder.path(u"loop"_qs));
        makeLink(u"missing/file"_qs, folder.path(u"lost-link"_qs));
        const QStringList namesBefore = namesIn(folder.path());

        const QString path = name.startsWith(u'/') ? name : folder.path(name);
        QCOMPARE(failureOf(AtomicFile::replace(path, newBytes)), std::optional(Reason(reason)));

        QCOMPARE(namesIn(folder.path()), namesBefore);
        QCOMPARE(contentOf(folder.file()), oldBytes);
    }

    void aFolderThatMayNotBeWrittenKeepsTheFile()
    {
        const FolderWithFile folder;
        QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));

        const auto replaced = AtomicFile::replace(folder.file(), newBytes);

        QVERIFY(QFile::setPermissions(folder.path(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(failureOf(replaced), std::optional(Reason::PermissionDenied));
        QVERIFY(folder.holdsOnly(oldBytes));
    }

    void aLimitOfTheFileSizeKeepsTheOldFile()
    {
        const FolderWithFile folder;
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

    void aFileThatFailsTheLastLookStays()
    {
        const FolderWithFile folder;

        const auto replaced = AtomicFile::replaceChecked(folder.file(), newBytes, [] {
            return std::unexpected(FileError{Reason::ChangedMeanwhile});
        });

        QCOMPARE(replaced.error().reason, Reason::ChangedMeanwhile);
        QVERIFY(folder.holdsOnly(oldBytes));
    }

    void nobodyReplacesBetweenAnothersLookAndReplacing()
    {
        const FolderWithFile folder;
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
};

TEST_SUBJECT(AtomicFileTest)
#include "AtomicFileTest.moc"
