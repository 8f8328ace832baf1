#include "ProgramInstance.h"
#include "Subject.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using Standing = ProgramInstance::Standing;

class ProgramInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_directory = m_home->filePath(u"Corvanite/Information"_qs);
        m_environment.insert(u"XDG_RUNTIME_DIR"_qs, m_home->path());
    }

    void theFirstHoldsTheDirectory()
    {
        const ProgramInstance first(m_directory, m_fileManager, m_environment);
        QCOMPARE(first.standing(), Standing::First);
    }

    void aLaterOneAsksTheFirstToComeUp()
    {
        const ProgramInstance first(m_directory, m_fileManager, m_environment);
        const QSignalSpy requests(&first, &ProgramInstance::activationRequested);
        auto standing = Standing::First;
        std::unique_ptr<QThread> later(QThread::create([this, &standing] {
            standing = ProgramInstance(m_directory, m_fileManager, m_environment).standing();
        }));
        later->start();
        QTRY_VERIFY_WITH_TIMEOUT(later->isFinished(), 20000);
        QCOMPARE(standing, Standing::Later);
        QCOMPARE(requests.size(), 1);
    }

    void theNextAfterTheFirstIsFirstAgain()
    {
        std::optional<ProgramInstance> first;
        first.emplace(m_directory, m_fileManager, m_environment);
        first.reset();
        QCOMPARE(ProgramInstance(m_directory, m_fileManager, m_environment).standing(),
                 Standing::First);
    }

    void theFirstRemovesWhatAKilledSaveLeft()
    {
        QVERIFY(QDir().mkpath(m_directory));
        const auto leftover = m_directory + u"/.corvanite-0123456789abcdef.tmp"_qs;
        QFile file(leftover);
        QVERIFY(file.open(QIODevice::WriteOnly));
        const ProgramInstance first(m_directory, m_fileManager, m_environment);
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
        const ProgramInstance first(m_directory, m_fileManager, m_environment);
        QVERIFY(!QFile::exists(leftover));
    }

    void withoutADirectoryNothingIsStored()
    {
        QCOMPARE(ProgramInstance(std::nullopt, m_fileManager, m_environment).standing(),
                 Standing::WithoutStorage);
    }

    void whereTheDirectoryCannotBeMadeNothingIsStored()
    {
        QFile obstacle(m_home->filePath(u"Corvanite"_qs));
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        QCOMPARE(ProgramInstance(m_directory, m_fileManager, m_environment).standing(),
                 Standing::WithoutStorage);
    }

private:
    const LocalFileManager m_fileManager{std::nullopt};
    QProcessEnvironment m_environment;
    std::optional<QTemporaryDir> m_home;
    QString m_directory;
};

TEST_SUBJECT(ProgramInstanceTest)
#include "ProgramInstanceTest.moc"
