// SPDX-License-Identifier: Apache-2.0

#include "ProgramInstance.h"
#include "Subject.h"

#include <QDir>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

#include <sys/syscall.h>
#include <unistd.h>

using Reason = FileError::Reason;
using Standing = ProgramInstance::Standing;

class ProgramInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_directory = m_home->filePath(u"Corvanite/Information"_qs);
    }

    void theFirstHoldsTheDirectory()
    {
        const ProgramInstance first(m_directory, m_fileManager);
        QCOMPARE(first.standing(), Standing::First);
    }

    void aLaterOneAsksTheFirstToComeUp()
    {
        const ProgramInstance first(m_directory, m_fileManager);
        const QSignalSpy requests(&first, &ProgramInstance::activationRequested);
        QCOMPARE(standingOfAnother(), Standing::Later);
        QCOMPARE(requests.size(), 1);
    }

    void theNextAfterTheFirstIsFirstAgain()
    {
        std::optional<ProgramInstance> first;
        first.emplace(m_directory, m_fileManager);
        first.reset();
        QCOMPARE(ProgramInstance(m_directory, m_fileManager).standing(), Standing::First);
    }

    void theFirstRemovesWhatAKilledSaveLeft()
    {
        QVERIFY(QDir().mkpath(m_directory));
        const auto leftover = m_directory + u"/.corvanite-0123456789abcdef.tmp"_qs;
        QFile file(leftover);
        QVERIFY(file.open(QIODevice::WriteOnly));
        const ProgramInstance first(m_directory, m_fileManager);
        QVERIFY(!QFile::exists(leftover));
    }

    void theFirstRemovesWhatAKilledSaveLeftWhereTheWorkspaceIsLinkedTo()
    {
        QVERIFY(QDir().mkpath(m_directory) && QDir(m_home->path()).mkdir(u"synced"_qs));
        QVERIFY(QFile::link(m_home->filePath(u"synced/kept.json"_qs),
                            m_directory + u"/workspace-v1.json"_qs));
        const auto leftover = m_home->filePath(u"synced/.corvanite-0123456789abcdef.tmp"_qs);
        QFile file(leftover);
        QVERIFY(file.open(QIODevice::WriteOnly));
        const ProgramInstance first(m_directory, m_fileManager);
        QVERIFY(!QFile::exists(leftover));
    }

    void aLaterOneIsNotFirstWhereTheDirectoryWasDeletedUnderTheFirst_data()
    {
        QTest::addColumn<QString>("removed");

        QTest::newRow("the lock file") << u"Corvanite/Information/.lock"_qs;
        QTest::newRow("the folder") << u"Corvanite/Information"_qs;
        QTest::newRow("the folder above") << u"Corvanite"_qs;
    }

    // It wrote beside the first: the lock of a new file is another lock.
    void aLaterOneIsNotFirstWhereTheDirectoryWasDeletedUnderTheFirst()
    {
        QFETCH(const QString, removed);
        ProgramInstance first(m_directory, m_fileManager);
        remove(removed);

        QCOMPARE(standingOfAnother(), Standing::Later);
        QVERIFY(first.hold());
        QCOMPARE(failureOfAnotherLock(), Reason::InUse);
    }

    void neverHoldsTheDirectoryBesideAnother()
    {
        ProgramInstance first(m_directory, m_fileManager);
        remove(u"Corvanite"_qs);
        {
            const auto other = InstanceLock::take(m_directory, m_fileManager);
            QVERIFY(other);
            QCOMPARE(first.hold().error().reason, Reason::InUse);
        }

        QVERIFY(first.hold());
        QCOMPARE(failureOfAnotherLock(), Reason::InUse);
    }

    void aDirectoryThatIsHeldByOneThatDoesNotAnswerIsTold()
    {
        const auto silent = InstanceLock::take(m_directory, m_fileManager);
        QVERIFY(silent);

        QCOMPARE(ProgramInstance(m_directory, m_fileManager).standing(), Standing::Unanswered);
    }

    void takesThePlaceOfOneThatEndsWhileItAsks()
    {
        auto taken = InstanceLock::take(m_directory, m_fileManager);
        QVERIFY(taken);
        auto ending = std::make_unique<InstanceLock>(*std::move(taken));
        QLocalServer channel;
        channel.setSocketOptions(QLocalServer::AbstractNamespaceOption);
        QVERIFY(channel.listen(InstanceChannel::nameFor(m_directory)));
        auto standing = Standing::Later;
        const auto next = startAnother(standing);
        QTRY_VERIFY_WITH_TIMEOUT(channel.hasPendingConnections(), 20000);
        channel.close();
        ending.reset();
        QTRY_VERIFY_WITH_TIMEOUT(next->isFinished(), 20000);
        QCOMPARE(standing, Standing::First);
    }

    void aNameThatIsTakenByAnotherUserKeepsNobodyFromWorking()
    {
        if (::geteuid() != 0) {
            QSKIP("only root may act as another user");
        }
        QSemaphore isListening;
        QSemaphore isDone;
        std::unique_ptr<QThread> other(QThread::create([&] {
            constexpr uid_t unchanged = -1;
            constexpr uid_t nobody = 65534;
            ::syscall(SYS_setresuid, unchanged, nobody, unchanged);
            QLocalServer server;
            server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
            server.listen(InstanceChannel::nameFor(m_directory));
            isListening.release();
            isDone.acquire();
        }));
        other->start();
        isListening.acquire();

        QCOMPARE(ProgramInstance(m_directory, m_fileManager).standing(), Standing::First);

        isDone.release();
        QVERIFY(other->wait(20000));
    }

    void withoutADirectoryNothingIsHeld()
    {
        ProgramInstance instance(std::nullopt, m_fileManager);
        QCOMPARE(instance.standing(), Standing::WithoutLock);
        QCOMPARE(instance.hold().error().reason, Reason::FolderMissing);
    }

    void aDirectoryThatCannotBeMadeIsHeldOnceItCan()
    {
        const auto obstacle = m_home->filePath(u"Corvanite"_qs);
        QFile file(obstacle);
        QVERIFY(file.open(QIODevice::WriteOnly));
        ProgramInstance instance(m_directory, m_fileManager);
        QCOMPARE(instance.standing(), Standing::WithoutLock);
        QCOMPARE(instance.hold().error().reason, Reason::FolderMissing);

        QVERIFY(QFile::remove(obstacle));

        QVERIFY(instance.hold());
        QCOMPARE(instance.standing(), Standing::First);
        QCOMPARE(failureOfAnotherLock(), Reason::InUse);
    }

    void aSecondOneAsksTheFirstAlsoWhereTheDirectoryCannotBeHeld()
    {
        QFile obstacle(m_home->filePath(u"Corvanite"_qs));
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        const ProgramInstance first(m_directory, m_fileManager);
        const QSignalSpy requests(&first, &ProgramInstance::activationRequested);

        QCOMPARE(standingOfAnother(), Standing::Later);
        QCOMPARE(requests.size(), 1);
    }

private:
    std::unique_ptr<QThread> startAnother(Standing& standing)
    {
        std::unique_ptr<QThread> thread(QThread::create([this, &standing] {
            standing = ProgramInstance(m_directory, m_fileManager).standing();
        }));
        thread->start();
        return thread;
    }

    Standing standingOfAnother()
    {
        auto standing = Standing::First;
        const auto another = startAnother(standing);
        const bool hasEnded = QTest::qWaitFor([&] { return another->isFinished(); }, 20000);
        return hasEnded ? standing : Standing::Unanswered;
    }

    std::optional<Reason> failureOfAnotherLock() const
    {
        const auto lock = InstanceLock::take(m_directory, m_fileManager);
        return lock ? std::nullopt : std::optional(lock.error().reason);
    }

    void remove(const QString& name) const
    {
        const auto path = m_home->filePath(name);
        QVERIFY(QFile::remove(path) || QDir(path).removeRecursively());
    }

    const LocalFileManager m_fileManager{std::nullopt};
    std::optional<QTemporaryDir> m_home;
    QString m_directory;
};

TEST_SUBJECT(ProgramInstanceTest)
#include "ProgramInstanceTest.moc"
