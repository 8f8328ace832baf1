// SPDX-License-Identifier: Apache-2.0

#include "InformationSignalIndex.h"
#include "Subject.h"

#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

InformationSignal signalWith(const QString& id, const QString& title)
{
    InformationSignal signal{};
    signal.id = id;
    signal.title = title;
    return signal;
}

/// Whether the statements abort the process, tried in a silent copy of this one.
template <typename Statements>
bool aborts(const Statements& statements)
{
    const pid_t copy = fork();
    if (copy == 0) {
        std::signal(SIGABRT, SIG_DFL);
        close(STDOUT_FILENO);
        close(STDERR_FILENO);
        qInstallMessageHandler(nullptr);
        statements();
        _exit(0);
    }
    int status = 0;
    waitpid(copy, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT;
}

} // namespace

class InformationSignalIndexTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsEachSignalByItsId()
    {
        const auto index =
            indexById({signalWith(u"a"_qs, u"一"_qs), signalWith(u"b"_qs, u"二"_qs)});

        QCOMPARE(index.size(), 2);
        QCOMPARE(index.value(u"a"_qs).title, u"一"_qs);
        QCOMPARE(index.value(u"b"_qs).title, u"二"_qs);
    }

    void idsDifferInCase()
    {
        QCOMPARE(indexById({signalWith(u"a"_qs, {}), signalWith(u"A"_qs, {})}).size(), 2);
    }

    void noSignalsMakeAnEmptyIndex() { QVERIFY(indexById({}).isEmpty()); }

    void aRepeatedIdStopsTheProgram()
    {
        QVERIFY(aborts([] { indexById({signalWith(u"a"_qs, {}), signalWith(u"a"_qs, {})}); }));
        QVERIFY(!aborts([] { indexById({signalWith(u"a"_qs, {}), signalWith(u"b"_qs, {})}); }));
    }
};

TEST_SUBJECT(InformationSignalIndexTest)
#include "InformationSignalIndexTest.moc"
