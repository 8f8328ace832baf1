#include "InstanceChannel.h"
#include "Subject.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class InstanceChannelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_path = m_home->filePath(u"socket"_qs);
    }

    void theSocketStandsForTheDataDirectory()
    {
        QProcessEnvironment environment;
        environment.insert(u"XDG_RUNTIME_DIR"_qs, u"/run/user/7"_qs);
        const auto first = makeDirectory(u"first"_qs);
        const auto second = makeDirectory(u"second"_qs);
        const auto link = m_home->filePath(u"link"_qs);
        QVERIFY(QFile::link(first, link));

        const auto path = InstanceChannel::socketPath(first, environment);
        QVERIFY(path.startsWith(u"/run/user/7/corvanite-information-"));
        QCOMPARE(InstanceChannel::socketPath(first, environment), path);
        QCOMPARE(InstanceChannel::socketPath(link, environment), path);
        QVERIFY(InstanceChannel::socketPath(second, environment) != path);
    }

    void withoutARuntimeDirectoryTheSocketLiesInTheDataDirectory_data()
    {
        QTest::addColumn<QString>("runtimeDirectory");

        QTest::newRow("none") << QString();
        QTest::newRow("a relative one") << u"run"_qs;
    }

    void withoutARuntimeDirectoryTheSocketLiesInTheDataDirectory()
    {
        QFETCH(const QString, runtimeDirectory);
        QProcessEnvironment environment;
        environment.insert(u"XDG_RUNTIME_DIR"_qs, runtimeDirectory);
        const auto directory = makeDirectory(u"data"_qs);
        QVERIFY(InstanceChannel::socketPath(directory, environment)
                    .startsWith(directory + u"/corvanite-information-"_qs));
    }

    void aRequestIsTaken()
    {
        InstanceChannel channel;
        const QSignalSpy requests(&channel, &InstanceChannel::activationRequested);
        QVERIFY(channel.listen(m_path));
        QVERIFY(requestFromAnotherThread());
        QCOMPARE(requests.size(), 1);
        QVERIFY(requestFromAnotherThread());
        QCOMPARE(requests.size(), 2);
    }

    void theSocketIsForThisUserOnly()
    {
        InstanceChannel channel;
        QVERIFY(channel.listen(m_path));
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, mode_t{0700});
    }

    void theSocketOfAKilledProgramIsReplaced()
    {
        const auto process = ::fork();
        if (process == 0) {
            InstanceChannel channel;
            ::_exit(channel.listen(m_path) ? 0 : 1);
        }
        int status = 1;
        QCOMPARE(::waitpid(process, &status, 0), process);
        QCOMPARE(status, 0);
        QVERIFY(QFile::exists(m_path));

        InstanceChannel channel;
        QVERIFY(channel.listen(m_path));
        QVERIFY(requestFromAnotherThread());
    }

    void aRequestWaitsForAProgramThatIsStillStarting()
    {
        InstanceChannel channel;
        bool taken = false;
        std::unique_ptr<QThread> second(QThread::create(
            [this, &taken] { taken = InstanceChannel::requestActivation(m_path); }));
        second->start();
        QVERIFY(channel.listen(m_path));
        QTRY_VERIFY_WITH_TIMEOUT(second->isFinished(), 20000);
        QVERIFY(taken);
    }

    void aRequestThatNobodyTakesIsGivenUp()
    {
        QVERIFY(!InstanceChannel::requestActivation(m_path));
    }

private:
    QString makeDirectory(const QString& name)
    {
        QDir(m_home->path()).mkdir(name);
        return m_home->filePath(name);
    }

    bool requestFromAnotherThread()
    {
        bool taken = false;
        std::unique_ptr<QThread> second(QThread::create(
            [this, &taken] { taken = InstanceChannel::requestActivation(m_path); }));
        second->start();
        return QTest::qWaitFor([&second] { return second->isFinished(); }, 20000) && taken;
    }

    std::optional<QTemporaryDir> m_home;
    QString m_path;
};

TEST_SUBJECT(InstanceChannelTest)
#include "InstanceChannelTest.moc"
