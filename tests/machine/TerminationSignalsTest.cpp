// SPDX-License-Identifier: Apache-2.0

#include "TerminationSignals.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

class TerminationSignalsTest : public QObject
{
    Q_OBJECT

private:
    static void addSignals()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGHUP") << SIGHUP;
        QTest::newRow("SIGINT") << SIGINT;
    }

    /// How a child of this process ends that does so.
    template <typename Act>
    static int statusAfter(Act act)
    {
        const auto child = ::fork();
        if (child == 0) {
            act();
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return status;
    }

private Q_SLOTS:
    void aSignalIsAnEvent_data() { addSignals(); }

    void aSignalIsAnEvent()
    {
        QFETCH(const int, signal);
        const TerminationSignals signals;
        const QSignalSpy asked(&signals, &TerminationSignals::endRequested);

        ::raise(signal);

        QCOMPARE(asked.size(), 0);
        QTRY_COMPARE(asked.size(), 1);
    }

    void asTheSecondItEndsTheProcess_data() { addSignals(); }

    void asTheSecondItEndsTheProcess()
    {
        QFETCH(const int, signal);
        const int status = statusAfter([signal] {
            const TerminationSignals signals;
            ::raise(signal);
            ::raise(signal);
        });

        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), signal);
    }

    // nohup leaves SIGHUP ignored.
    void whatIsIgnoredStaysIgnored()
    {
        const int status = statusAfter([] {
            std::signal(SIGHUP, SIG_IGN);
            const TerminationSignals signals;
            const QSignalSpy asked(&signals, &TerminationSignals::endRequested);
            ::raise(SIGHUP);
            QCoreApplication::processEvents();
            ::_exit(static_cast<int>(asked.size()));
        });

        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 0);
    }
};

TEST_SUBJECT(TerminationSignalsTest)
#include "TerminationSignalsTest.moc"
