// SPDX-License-Identifier: Apache-2.0

#include "InstanceLock.h"
#include "LocalFileManager.h"
#include "Subject.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Reason = FileError::Reason;

/// A process that holds the lock of a directory until it is killed.
class HoldingProcess
{
public:
    explicit HoldingProcess(const QString& directory)
    {
        std::array<int, 2> pipe;
        if (::pipe(pipe.data()) != 0) {
            qFatal("no pipe");
        }
        m_id = ::fork();
        if (m_id == 0) {
            const auto lock = InstanceLock::take(directory, LocalFileManager(std::nullopt));
            const char answer = lock ? 'y' : 'n';
            if (::write(pipe[1], &answer, 1) != 1) {
                ::_exit(1);
            }
            for (;;) {
                ::pause();
            }
        }
        char answer = 'n';
        m_holds = ::read(pipe[0], &answer, 1) == 1 && answer == 'y';
        ::close(pipe[0]);
        ::close(pipe[1]);
    }

    ~HoldingProcess()
    {
        ::kill(m_id, SIGKILL);
        ::waitpid(m_id, nullptr, 0);
    }

    bool holds() const { return m_holds; }

    Q_DISABLE_COPY_MOVE(HoldingProcess)

private:
    pid_t m_id = 0;
    bool m_holds = false;
};

std::optional<Reason> failureOf(const QString& directory)
{
    const auto lock = InstanceLock::take(directory, LocalFileManager(std::nullopt));
    return lock ? std::nullopt : std::optional(lock.error().reason);
}

mode_t permissions(const QString& path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

class InstanceLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_directory = m_home->filePath(u"Corvanite/Information"_qs);
    }

    void makesTheDirectoryAndTheFileForThisUserOnly()
    {
        const auto lock = InstanceLock::take(m_directory, LocalFileManager(std::nullopt));
        QVERIFY(lock);
        QCOMPARE(permissions(m_directory), mode_t{0700});
        QCOMPARE(permissions(m_directory + u"/.lock"_qs), mode_t{0600});
    }

    void isHeldUntilItsObjectGoes()
    {
        {
            const auto lock = InstanceLock::take(m_directory, LocalFileManager(std::nullopt));
            QVERIFY(lock);
            QCOMPARE(failureOf(m_directory), Reason::InUse);
        }
        QCOMPARE(failureOf(m_directory), std::nullopt);
    }

    void movesWithItsObject()
    {
        auto first = InstanceLock::take(m_directory, LocalFileManager(std::nullopt));
        QVERIFY(first);
        {
            const auto second = std::move(*first);
            QCOMPARE(failureOf(m_directory), Reason::InUse);
        }
        QCOMPARE(failureOf(m_directory), std::nullopt);
    }

    void anotherDirectoryIsFree()
    {
        const auto lock = InstanceLock::take(m_directory, LocalFileManager(std::nullopt));
        QVERIFY(lock);
        QCOMPARE(failureOf(m_home->filePath(u"other"_qs)), std::nullopt);
    }

    void anotherProcessHoldsItUntilItIsKilled()
    {
        {
            const HoldingProcess process(m_directory);
            QVERIFY(process.holds());
            QCOMPARE(failureOf(m_directory), Reason::InUse);
        }
        QVERIFY(QFileInfo::exists(m_directory + u"/.lock"_qs));
        QCOMPARE(failureOf(m_directory), std::nullopt);
    }

    void aProgramThatIsStartedMeanwhileDoesNotInheritIt()
    {
        auto lock =
            std::make_optional(InstanceLock::take(m_directory, LocalFileManager(std::nullopt)));
        QVERIFY(*lock);
        QProcess started;
        started.start(u"cat"_qs);
        QVERIFY(started.waitForStarted());

        lock.reset();

        QCOMPARE(failureOf(m_directory), std::nullopt);
        QCOMPARE(started.state(), QProcess::Running);
        started.closeWriteChannel();
        QVERIFY(started.waitForFinished());
    }

    void aLockFileThatIsGoneIsTold_data()
    {
        QTest::addColumn<QString>("removed");
        QTest::addColumn<bool>("isMadeAnew");

        QTest::newRow("the file") << u"Corvanite/Information/.lock"_qs << false;
        QTest::newRow("the file, another in its place")
            << u"Corvanite/Information/.lock"_qs << true;
        QTest::newRow("the folder") << u"Corvanite/Information"_qs << false;
        QTest::newRow("the folder, another in its place") << u"Corvanite/Information"_qs << true;
        QTest::newRow("the folder above") << u"Corvanite"_qs << false;
    }

    void aLockFileThatIsGoneIsTold()
    {
        QFETCH(const QString, removed);
        QFETCH(const bool, isMadeAnew);
        const auto lock = InstanceLock::take(m_directory, LocalFileManager(std::nullopt));
        QVERIFY(lock);
        QCOMPARE(lock->isInPlace(), true);
        const auto path = m_home->filePath(removed);
        QVERIFY(QFile::remove(path) || QDir(path).removeRecursively());
        if (isMadeAnew) {
            QCOMPARE(failureOf(m_directory), std::nullopt);
        }

        QCOMPARE(lock->isInPlace(), false);
    }

    void whereNothingCanBeMadeThereIsNone_data()
    {
        QTest::addColumn<QString>("obstacle");

        QTest::newRow("a file in the directory's place") << u"Corvanite/Information"_qs;
        QTest::newRow("a file above the directory") << u"Corvanite"_qs;
    }

    void whereNothingCanBeMadeThereIsNone()
    {
        QFETCH(const QString, obstacle);
        const auto path = m_home->filePath(obstacle);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(failureOf(m_directory), Reason::FolderMissing);
    }

    void whereTheLockIsNoFileThereIsNone_data()
    {
        QTest::addColumn<bool>("link");

        QTest::newRow("a folder") << false;
        QTest::newRow("a link to elsewhere") << true;
    }

    void whereTheLockIsNoFileThereIsNone()
    {
        QFETCH(const bool, link);
        const auto path = m_directory + u"/.lock"_qs;
        QVERIFY(QDir().mkpath(m_directory));
        const auto elsewhere = m_home->filePath(u"elsewhere"_qs);
        QVERIFY(link ? QFile::link(elsewhere, path) : QDir().mkpath(path));
        QCOMPARE(failureOf(m_directory), Reason::NotARegularFile);
        QVERIFY(!QFileInfo::exists(elsewhere));
    }

private:
    std::optional<QTemporaryDir> m_home;
    QString m_directory;
};

TEST_SUBJECT(InstanceLockTest)
#include "InstanceLockTest.moc"
