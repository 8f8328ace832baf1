// SPDX-License-Identifier: Apache-2.0

#include "FileError.h"
#include "Subject.h"

#include <QTest>

#include <cerrno>

class FileErrorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatAReaderCanActOn_data()
    {
        QTest::addColumn<int>("systemError");
        QTest::addColumn<QString>("description");

        const QString denied = u"没有写入权限；请检查数据目录的权限。"_qs;
        QTest::newRow("EACCES") << EACCES << denied;
        QTest::newRow("EPERM") << EPERM << denied;
        const QString full = u"磁盘空间不足；腾出一些空间后再试。"_qs;
        QTest::newRow("ENOSPC") << ENOSPC << full;
        QTest::newRow("EDQUOT") << EDQUOT << full;
        QTest::newRow("EROFS") << EROFS << u"磁盘只读，无法写入。"_qs;
        const QString unusual = u"文件被占用或不是普通文件。"_qs;
        QTest::newRow("EBUSY") << EBUSY << unusual;
        QTest::newRow("ETXTBSY") << ETXTBSY << unusual;
        QTest::newRow("EISDIR") << EISDIR << unusual;
        QTest::newRow("ELOOP") << ELOOP << unusual;
        QTest::newRow("ENXIO") << ENXIO << unusual;
        QTest::newRow("ENODEV") << ENODEV << unusual;
        const QString missing = u"数据目录不存在，也无法创建。"_qs;
        QTest::newRow("ENOENT") << ENOENT << missing;
        QTest::newRow("ENOTDIR") << ENOTDIR << missing;
        QTest::newRow("EIO") << EIO << u"读写出错；请检查磁盘。"_qs;
        QTest::newRow("the rest") << EFBIG << u"文件操作没有完成（File too large）。"_qs;
    }

    void saysWhatAReaderCanActOn()
    {
        QFETCH(int, systemError);
        QFETCH(QString, description);

        const FileError error = FileError::fromSystemError(systemError);
        QCOMPARE(error.systemError, systemError);
        QCOMPARE(error.localizedDescription(), description);
    }

    void saysThatAnotherProgramIsAtWork()
    {
        const FileError error{FileError::Reason::InUse};
        QCOMPARE(error.localizedDescription(), u"数据目录正由另一个运行中的程序使用。"_qs);
    }

    void saysThatTheFileChangedMeanwhile()
    {
        const FileError error{FileError::Reason::ChangedMeanwhile};
        QCOMPARE(error.localizedDescription(), u"文件刚刚在别处有了改动；请再试一次。"_qs);
    }

    void tellsReadingFromWriting()
    {
        const FileError error{FileError::Reason::ReadPermissionDenied};
        QCOMPARE(error.localizedDescription(), u"没有读取权限；请检查数据目录的权限。"_qs);
    }
};

TEST_SUBJECT(FileErrorTest)
#include "FileErrorTest.moc"
