// SPDX-License-Identifier: Apache-2.0

#include "DataFolder.h"
#include "NextStart.h"
#include "SavingProcess.h"
#include "StoredWorkspace.h"
#include "Subject.h"

#include <QProcess>
#include <QTest>

// Saves that the kernel itself fails: on a disk that is full, and under strace, which has it do so.
class KernelFaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFullDiskKeepsTheOldFile()
    {
        const DataFolder contents;
        fill(contents);
        const DataFolder folder;
        const QStringList onDisk = onSmallDisk(contents, folder);
        if (const QString refusal = refusalOf(onDisk); !refusal.isEmpty()) {
            QSKIP(qUtf8Printable(u"no disk of its own may be mounted here: "_qs + refusal));
        }
        SavingProcess process(folder, onDisk);
        QVERIFY(process.isAlive());

        // One page of the disk more each time, until the file goes into it.
        const QString disk = u"/proc/%1/root"_qs.arg(process.id());
        QFile filler(disk + folder.path(u"filler"_qs));
        fillDisk(filler);
        int refused = 0;
        while (isRefusedForWantOfSpace(process, disk, folder)) {
            QVERIFY(filler.resize(filler.size() - pageBytes));
            ++refused;
        }

        QVERIFY(refused > 4);
        const auto stored = contentOf(disk + folder.path(DataFolder::workspace));
        QVERIFY(stored != m_workspace);
        QCOMPARE(process.seen(u"workspace"_qs).toUtf8(), stored);
        QVERIFY(process.ends());
    }

    // Its workspace was not read, and what was kept was gone without a word.
    void aReadOnlyDiskIsShownAndASaveSaysSo()
    {
        const DataFolder folder;
        fill(folder);
        const QStringList onDisk = onReadOnlyDisk(folder);
        if (const QString refusal = refusalOf(onDisk); !refusal.isEmpty()) {
            QSKIP(qUtf8Printable(u"no disk may be mounted read-only here: "_qs + refusal));
        }
        SavingProcess process(folder, onDisk);
        QVERIFY(process.isAlive());
        QCOMPARE(process.seen(u"error"_qs), QString());
        QCOMPARE(process.seen(u"workspace"_qs).toUtf8(), m_workspace);

        process.act(u"add"_qs);

        QVERIFY(process.isAlive());
        QCOMPARE(process.seen(u"error"_qs), u"没有保存这次操作：磁盘只读，无法写入。"_qs);
        QCOMPARE(process.seen(u"workspace"_qs).toUtf8(), m_workspace);
        QVERIFY(process.ends());
    }

    void aCallThatTheKernelFailsLosesNothing_data()
    {
        QTest::addColumn<QString>("calls");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<bool>("isSaved");

        const QStringList faults{u"error=EIO"_qs, u"error=ENOSPC"_qs, u"error=EDQUOT"_qs,
                                 u"signal=SIGKILL"_qs};
        const auto add = [&faults](const char* step, const QString& calls, int number,
                                   bool isSaved) {
            for (const QString& fault : faults) {
                QTest::addRow("%s: %s", step, qUtf8Printable(fault))
                    << calls << number << fault << isSaved;
            }
        };
        add("sync of the file", u"fsync"_qs, 1, false);
        add("rename", u"/^rename"_qs, 1, false);
        add("sync of the folder", u"fsync"_qs, 2, true);
    }

    void aCallThatTheKernelFailsLosesNothing()
    {
        QFETCH(const QString, calls);
        QFETCH(const int, number);
        QFETCH(const QString, fault);
        QFETCH(const bool, isSaved);
        const DataFolder folder;
        fill(folder);
        const QStringList strace{u"strace"_qs,  u"-f"_qs, u"-o"_qs,
                                 logOf(folder), u"-e"_qs, u"trace="_qs + calls};
        if (const QString refusal = refusalOf(strace); !refusal.isEmpty()) {
            QSKIP(qUtf8Printable(u"strace does not work here: "_qs + refusal));
        }
        const QString injection = u"inject=%1:%2:when=%3"_qs.arg(calls, fault).arg(number);
        SavingProcess process(folder, strace + QStringList{u"-e"_qs, injection});

        process.act(u"note"_qs);

        if (fault == u"signal=SIGKILL") {
            QVERIFY(process.wasKilled());
        } else {
            verifyTold(process, folder, isSaved);
            verifyNextAction(process);
        }
        QCOMPARE(folder.content(DataFolder::workspace).contains("写下的备注"), isSaved);
        verifyNextStart(folder);
    }

private:
    static constexpr int pageBytes = 4096;

    // With a file of the day before, so that only the workspace is stored.
    void fill(const DataFolder& folder) const
    {
        folder.store(DataFolder::workspace, m_workspace);
        folder.store(DataFolder::previous, "{}");
        folder.setWrittenAt(DataFolder::previous, ProgramStart::now);
    }

    static void fillDisk(QFile& filler)
    {
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(pageBytes, 'x')) == pageBytes) {
        }
    }

    // Whether a note is refused; then nothing has changed.
    bool isRefusedForWantOfSpace(SavingProcess& process, const QString& disk,
                                 const DataFolder& folder) const
    {
        const auto names = [&] { return namesIn(disk + folder.path(DataFolder::storage)); };
        const QStringList before = names();
        process.act(u"dismiss the error"_qs);
        process.act(u"note"_qs);
        if (!process.isAlive() || names() != before) {
            qFatal("a save on a full disk left something else");
        }
        if (process.seen(u"error"_qs).isEmpty()) {
            return false;
        }
        return process.seen(u"error"_qs) ==
                   u"没有保存这次操作：磁盘空间不足；腾出一些空间后再试。"_qs &&
               contentOf(disk + folder.path(DataFolder::workspace)) == m_workspace;
    }

    static QString logOf(const DataFolder& folder) { return folder.runtime() + u"/strace"_qs; }

    static void verifyTold(const SavingProcess& process, const DataFolder& folder, bool isSaved)
    {
        QVERIFY(contentOf(logOf(folder)).contains("(INJECTED)"));
        QVERIFY(process.isAlive());
        QCOMPARE(process.seen(u"error"_qs).isEmpty(), isSaved);
        QCOMPARE(folder.leftovers(), QStringList());
        QCOMPARE(process.seen(u"workspace"_qs).toUtf8(), folder.content(DataFolder::workspace));
    }

    static void verifyNextAction(SavingProcess& process)
    {
        process.act(u"dismiss the error"_qs);
        process.act(u"add"_qs);
        QCOMPARE(process.seen(u"error"_qs), QString());
        QVERIFY(process.ends());
    }

    // A command that runs what is appended to it where the folder is a disk of 256 KiB with the
    // contents of the other.
    static QStringList onSmallDisk(const DataFolder& contents, const DataFolder& folder)
    {
        return {u"unshare"_qs,
                u"--user"_qs,
                u"--map-root-user"_qs,
                u"--mount"_qs,
                u"sh"_qs,
                u"-c"_qs,
                u"mount -t tmpfs -o size=256k tmpfs \"$1\" && cp -a \"$0/.\" \"$1\" && shift && "
                "exec \"$@\""_qs,
                contents.path(),
                folder.path()};
    }

    // A command that runs what is appended to it where the folder is on a read-only disk.
    static QStringList onReadOnlyDisk(const DataFolder& folder)
    {
        return {u"unshare"_qs,
                u"--user"_qs,
                u"--map-root-user"_qs,
                u"--mount"_qs,
                u"sh"_qs,
                u"-c"_qs,
                u"mount --bind \"$0\" \"$0\" && mount -o remount,bind,ro \"$0\" && exec \"$@\""_qs,
                folder.path()};
    }

    // Why this machine runs nothing under the command; empty where it does.
    static QString refusalOf(QStringList command)
    {
        command.append(u"true"_qs);
        QProcess process;
        const QString program = command.takeFirst();
        process.start(program, command);
        if (!process.waitForFinished()) {
            return process.errorString();
        }
        const QString said = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
        return process.exitCode() == 0 ? QString() : said + u" ("_qs + program + u')';
    }

    const QByteArray m_workspace = storedWorkspace();
};

TEST_SUBJECT(KernelFaultTest)
#include "KernelFaultTest.moc"
