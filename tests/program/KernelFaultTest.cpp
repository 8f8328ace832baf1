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
        const DataFolder unmounted;
        unmounted.store(DataFolder::workspace, storedWorkspace());
        const DataFolder folder;
        const QString refusal = refusalOf(onSmallDisk(unmounted, folder) + QStringList{u"true"_qs});
        if (!refusal.isEmpty()) {
            QSKIP(qUtf8Printable(u"no disk of its own may be mounted here: "_qs + refusal));
        }
        SavingProcess process(folder, m_site.path(), {}, onSmallDisk(unmounted, folder));
        QVERIFY(process.isAlive());
        const QString disk = u"/proc/%1/root"_qs.arg(process.id());
        const auto stored = [&] { return contentOf(disk + folder.path(DataFolder::workspace)); };
        const QStringList names = namesIn(disk + folder.path(DataFolder::storage));
        const QByteArray before = stored();
        QVERIFY(before.size() > 4 * pageBytes);

        // One page of the disk more each time, until the file goes into it.
        QFile filler(disk + folder.path(u"filler"_qs));
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(pageBytes, 'x')) == pageBytes) {
        }
        int refused = 0;
        for (;; ++refused) {
            process.act(u"dismiss the error"_qs);
            process.act(u"note"_qs);
            QVERIFY(process.isAlive());
            QCOMPARE(namesIn(disk + folder.path(DataFolder::storage)), names);
            if (process.belief(u"error"_qs).isEmpty()) {
                break;
            }
            QCOMPARE(process.belief(u"error"_qs),
                     u"没有保存这次操作：磁盘空间不足；腾出一些空间后再试。"_qs);
            QCOMPARE(stored(), before);
            QVERIFY(filler.resize(filler.size() - pageBytes));
        }
        QVERIFY(refused > 4);
        QVERIFY(stored() != before);
        QCOMPARE(process.belief(u"workspace"_qs).toUtf8(), stored());
        QVERIFY(process.ends());
    }

    // Its workspace was not read, and what was kept was gone without a word.
    void aReadOnlyDiskIsShownAndASaveSaysSo()
    {
        const DataFolder folder;
        folder.store(DataFolder::workspace, storedWorkspace());
        const QString refusal = refusalOf(onReadOnlyDisk(folder) + QStringList{u"true"_qs});
        if (!refusal.isEmpty()) {
            QSKIP(qUtf8Printable(u"no disk may be mounted read-only here: "_qs + refusal));
        }
        SavingProcess process(folder, m_site.path(), {}, onReadOnlyDisk(folder));
        QVERIFY(process.isAlive());
        QCOMPARE(process.belief(u"error"_qs), QString());
        QCOMPARE(process.belief(u"workspace"_qs).toUtf8(), folder.content(DataFolder::workspace));

        process.act(u"add"_qs);

        QVERIFY(process.isAlive());
        QCOMPARE(process.belief(u"error"_qs), u"没有保存这次操作：磁盘只读，无法写入。"_qs);
        QCOMPARE(process.belief(u"workspace"_qs).toUtf8(), folder.content(DataFolder::workspace));
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
        QFETCH(QString, calls);
        QFETCH(int, number);
        QFETCH(QString, fault);
        QFETCH(bool, isSaved);
        const DataFolder folder;
        const QByteArray before = storedWorkspace();
        folder.store(DataFolder::workspace, before);
        const QString log = folder.runtime() + u"/strace"_qs;
        const QStringList strace{u"strace"_qs, u"-f"_qs, u"-o"_qs,
                                 log,          u"-e"_qs, u"trace="_qs + calls};
        const QString refusal = refusalOf(strace + QStringList{u"true"_qs});
        if (!refusal.isEmpty()) {
            QSKIP(qUtf8Printable(u"strace does not work here: "_qs + refusal));
        }
        SavingProcess process(
            folder, m_site.path(), {},
            strace +
                QStringList{u"-e"_qs, u"inject=%1:%2:when=%3"_qs.arg(calls, fault).arg(number)});
        process.act(u"note"_qs);

        if (fault == u"signal=SIGKILL") {
            QVERIFY(process.wasKilled());
        } else {
            QVERIFY(contentOf(log).contains("(INJECTED)"));
            QVERIFY(process.isAlive());
            QCOMPARE(process.belief(u"error"_qs).isEmpty(), isSaved);
            QCOMPARE(folder.leftovers(), QStringList());
            QCOMPARE(process.belief(u"workspace"_qs).toUtf8(),
                     folder.content(DataFolder::workspace));
        }
        QCOMPARE(folder.content(DataFolder::workspace) != before, isSaved);
        if (process.isAlive()) {
            process.act(u"dismiss the error"_qs);
            process.act(u"add"_qs);
            QCOMPARE(process.belief(u"error"_qs), QString());
            QVERIFY(process.ends());
        }
        verifyNextStart(folder);
    }

private:
    static constexpr int pageBytes = 4096;

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

    // Why this machine does not run the command; empty where it does.
    static QString refusalOf(QStringList command)
    {
        QProcess process;
        const QString program = command.takeFirst();
        process.start(program, command);
        if (!process.waitForFinished()) {
            return process.errorString();
        }
        const QString said = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
        return process.exitCode() == 0 ? QString() : said + u" ("_qs + program + u')';
    }

    QTemporaryDir m_site;
};

TEST_SUBJECT(KernelFaultTest)
#include "KernelFaultTest.moc"
