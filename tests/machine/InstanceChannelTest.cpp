// SPDX-License-Identifier: Apache-2.0

#include "InstanceChannel.h"
#include "Subject.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <functional>

#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;

class InstanceChannelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_name = InstanceChannel::nameFor(m_home->path());
    }

    void theNameStandsForTheDataDirectory()
    {
        const auto first = makeDirectory(u"first"_qs);
        const auto second = makeDirectory(u"second"_qs);
        const auto link = m_home->filePath(u"link"_qs);
        QVERIFY(QFile::link(first, link));

        const auto name = InstanceChannel::nameFor(first);
        QCOMPARE(InstanceChannel::nameFor(link), name);
        QVERIFY(InstanceChannel::nameFor(second) != name);
    }

    // With a socket in the file system, a data directory as deep as this could not be reached.
    void theNameIsShortHoweverLongTheDirectorysIs()
    {
        const auto deep = m_home->path() + u"/folder"_qs.repeated(500);
        QVERIFY(InstanceChannel::nameFor(deep).size() < 100);
        QVERIFY(InstanceChannel::nameFor(deep) != InstanceChannel::nameFor(deep + u"/x"_qs));
    }

    void aRequestIsTaken()
    {
        InstanceChannel channel;
        const QSignalSpy requests(&channel, &InstanceChannel::activationRequested);
        QVERIFY(channel.listen(m_name));
        QVERIFY(requestFromAnotherThread());
        QCOMPARE(requests.size(), 1);
        QVERIFY(requestFromAnotherThread());
        QCOMPARE(requests.size(), 2);
    }

    void aRequestBringsItsToken_data()
    {
        QTest::addColumn<QByteArray>("token");
        QTest::addColumn<QByteArray>("heard");

        const QByteArray longest(1024, 't');
        QTest::newRow("none") << QByteArray() << QByteArray();
        QTest::newRow("token") << QByteArray("gnome-shell/1234_TIME5")
                               << QByteArray("gnome-shell/1234_TIME5");
        QTest::newRow("longest") << longest << longest;
        QTest::newRow("longer") << longest + 't' << QByteArray();
        QTest::newRow("two lines") << QByteArray("a\nb") << QByteArray();
        QTest::newRow("not ASCII") << QByteArray("令牌") << QByteArray();
    }

    void aRequestBringsItsToken()
    {
        QFETCH(const QByteArray, token);
        QFETCH(const QByteArray, heard);
        InstanceChannel channel;
        const QSignalSpy requests(&channel, &InstanceChannel::activationRequested);
        QVERIFY(channel.listen(m_name));

        QVERIFY(requestFromAnotherThread(token));

        QCOMPARE(requests.size(), 1);
        QCOMPARE(requests.first().first().toByteArray(), heard);
    }

    void aLineThatGoesOnIsNoToken()
    {
        InstanceChannel channel;
        const QSignalSpy requests(&channel, &InstanceChannel::activationRequested);
        QVERIFY(channel.listen(m_name));
        QLocalSocket socket;
        socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
        socket.connectToServer(m_name);

        socket.write(QByteArray(5000, 't'));

        QTRY_COMPARE(requests.size(), 1);
        QCOMPARE(requests.first().first().toByteArray(), QByteArray());
    }

    void onlyOneListens()
    {
        std::optional<InstanceChannel> first(std::in_place);
        InstanceChannel second;
        QVERIFY(first->listen(m_name));
        QVERIFY(!second.listen(m_name));
        first.reset();
        QVERIFY(second.listen(m_name));
    }

    void aKilledProgramLeavesTheNameFree()
    {
        const auto process = ::fork();
        if (process == 0) {
            InstanceChannel channel;
            ::_exit(channel.listen(m_name) ? 0 : 1);
        }
        int status = 1;
        QCOMPARE(::waitpid(process, &status, 0), process);
        QCOMPARE(status, 0);

        InstanceChannel channel;
        QVERIFY(channel.listen(m_name));
        QVERIFY(requestFromAnotherThread());
    }

    void anotherUserIsNotHeard()
    {
        if (::geteuid() != 0) {
            QSKIP("only root may act as another user");
        }
        InstanceChannel channel;
        const QSignalSpy requests(&channel, &InstanceChannel::activationRequested);
        QVERIFY(channel.listen(m_name));
        bool isTurnedAway = false;
        const auto other = asAnotherUser([this, &isTurnedAway] {
            QLocalSocket socket;
            socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
            socket.connectToServer(m_name);
            isTurnedAway = socket.waitForConnected() &&
                           (socket.state() == QLocalSocket::UnconnectedState ||
                            socket.waitForDisconnected(20000)) &&
                           socket.bytesAvailable() == 0;
        });
        QTRY_VERIFY_WITH_TIMEOUT(other->isFinished(), 20000);
        QVERIFY(isTurnedAway);
        QCOMPARE(requests.size(), 0);
    }

    void anotherUserIsNotTakenForTheProgram()
    {
        if (::geteuid() != 0) {
            QSKIP("only root may act as another user");
        }
        QSemaphore isListening;
        const auto other = asAnotherUser([this, &isListening] {
            QLocalServer server;
            server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
            server.listen(m_name);
            isListening.release();
            if (server.waitForNewConnection(20000)) {
                auto* const request = server.nextPendingConnection();
                request->write("\n");
                request->waitForBytesWritten(20000);
            }
        });
        isListening.acquire();

        QVERIFY(!InstanceChannel::requestActivation(m_name));
        QVERIFY(other->wait(20000));
    }

    void aRequestThatIsNotAnsweredIsGivenUp()
    {
        QLocalServer silent;
        silent.setSocketOptions(QLocalServer::AbstractNamespaceOption);
        QVERIFY(silent.listen(m_name));

        QVERIFY(!InstanceChannel::requestActivation(m_name, {}, 1ms));
    }

    // As the one of a program that ends at this moment.
    void aRequestThatIsCutOffIsNotTaken()
    {
        QLocalServer ending;
        ending.setSocketOptions(QLocalServer::AbstractNamespaceOption);
        QVERIFY(ending.listen(m_name));
        connect(&ending, &QLocalServer::newConnection, this,
                [&ending] { delete ending.nextPendingConnection(); });

        QVERIFY(!requestFromAnotherThread());
    }

    void withNobodyThereARequestIsNotTaken()
    {
        QVERIFY(!InstanceChannel::requestActivation(m_name));
    }

private:
    QString makeDirectory(const QString& name)
    {
        QDir(m_home->path()).mkdir(name);
        return m_home->filePath(name);
    }

    // Of the thread alone, which the library's own call would not do.
    static std::unique_ptr<QThread> asAnotherUser(const std::function<void()>& act)
    {
        std::unique_ptr<QThread> thread(QThread::create([act] {
            constexpr uid_t unchanged = -1;
            constexpr uid_t nobody = 65534;
            if (::syscall(SYS_setresuid, unchanged, nobody, unchanged) == 0) {
                act();
            }
        }));
        thread->start();
        return thread;
    }

    bool requestFromAnotherThread(const QByteArray& token = {})
    {
        bool taken = false;
        std::unique_ptr<QThread> second(QThread::create(
            [&, this] { taken = InstanceChannel::requestActivation(m_name, token); }));
        second->start();
        return QTest::qWaitFor([&second] { return second->isFinished(); }, 20000) && taken;
    }

    std::optional<QTemporaryDir> m_home;
    QString m_name;
};

TEST_SUBJECT(InstanceChannelTest)
#include "InstanceChannelTest.moc"
