// SPDX-License-Identifier: Apache-2.0

#include "InstanceFileManager.h"
#include "FileTree.h"
#include "Subject.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class InstanceFileManagerTest : public QObject
{
    Q_OBJECT

    std::optional<QTemporaryDir> m_home;
    QString m_directory;
    QString m_path;
    const LocalFileManager m_local{u"/support"_qs};

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_directory = m_home->filePath(u"data"_qs);
        m_path = m_directory + u"/file"_qs;
    }

    void theHolderStores()
    {
        ProgramInstance instance(m_directory, m_local);
        const InstanceFileManager files(m_local, instance);

        QVERIFY(files.replaceFile(m_path, "bytes"));

        QCOMPARE(files.readFile(m_path).value(), std::optional(QByteArray("bytes")));
        QCOMPARE(files.applicationSupportDirectory(), u"/support"_qs);
    }

    void anotherHolderOfADeletedDirectoryKeepsItsFile()
    {
        ProgramInstance instance(m_directory, m_local);
        const InstanceFileManager files(m_local, instance);
        QVERIFY(QDir(m_directory).removeRecursively());
        const auto other = InstanceLock::take(m_directory, m_local);
        QVERIFY(other);
        writeFile(m_path, "another's");

        QCOMPARE(files.replaceFile(m_path, "bytes").error().reason, FileError::Reason::InUse);
        QCOMPARE(files.replaceReadFile(m_path, "another's", "bytes").error().reason,
                 FileError::Reason::InUse);

        QCOMPARE(files.readFile(m_path).value(), std::optional(QByteArray("another's")));
    }

    void aDeletedDirectoryIsMadeAndHeldAgain()
    {
        ProgramInstance instance(m_directory, m_local);
        const InstanceFileManager files(m_local, instance);
        QVERIFY(QDir(m_directory).removeRecursively());

        QVERIFY(files.createDirectory(m_directory));
        QVERIFY(files.replaceFile(m_path, "bytes"));

        QCOMPARE(contentOf(m_path), QByteArray("bytes"));
        QCOMPARE(InstanceLock::take(m_directory, m_local).error().reason, FileError::Reason::InUse);
    }

    void aDirectoryThatCannotBeHeldIsRead()
    {
        QVERIFY(QDir().mkpath(m_directory + u"/.lock"_qs));
        writeFile(m_path, "bytes");
        ProgramInstance instance(m_directory, m_local);
        const InstanceFileManager files(m_local, instance);

        QCOMPARE(files.readFile(m_path).value(), std::optional(QByteArray("bytes")));
        QCOMPARE(files.replaceFile(m_path, "others").error().reason,
                 FileError::Reason::NotARegularFile);
        QCOMPARE(contentOf(m_path), QByteArray("bytes"));
    }

    void aDirectoryThatCanBeHeldAgainIsHeldBeforeItIsRead()
    {
        QVERIFY(QDir().mkpath(m_directory + u"/.lock"_qs));
        ProgramInstance instance(m_directory, m_local);
        const InstanceFileManager files(m_local, instance);
        QVERIFY(QDir().rmdir(m_directory + u"/.lock"_qs));

        QVERIFY(files.readFile(m_path));

        QCOMPARE(InstanceLock::take(m_directory, m_local).error().reason, FileError::Reason::InUse);
        QVERIFY(files.replaceFile(m_path, "bytes"));
    }
};

TEST_SUBJECT(InstanceFileManagerTest)
#include "InstanceFileManagerTest.moc"
