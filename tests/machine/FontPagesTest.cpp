// SPDX-License-Identifier: Apache-2.0

#include "FontPages.h"
#include "FileDescriptor.h"
#include "FileTree.h"
#include "Subject.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/mman.h>

namespace {

constexpr qsizetype length = 40'000;

/// A file in memory, each byte of which has been read.
class MappedFile
{
public:
    MappedFile(const QString& path, int access) : m_path(path)
    {
        writeFile(path, content());
        const FileDescriptor descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY));
        m_bytes =
            static_cast<char*>(::mmap(nullptr, length, access, MAP_PRIVATE, descriptor.get(), 0));
        read();
    }
    ~MappedFile() { ::munmap(m_bytes, length); }
    Q_DISABLE_COPY_MOVE(MappedFile)

    static QByteArray content() { return QByteArray("letters ").repeated(length / 8); }

    char* bytes() { return m_bytes; }
    QByteArray read() const { return QByteArray(m_bytes, length); }

    /// The kilobytes of it that stand in memory; negative where it is not found.
    int standing() const
    {
        QFile smaps(u"/proc/self/smaps"_qs);
        if (!smaps.open(QIODevice::ReadOnly)) {
            return -1;
        }
        const QRegularExpression entry(QRegularExpression::escape(m_path) +
                                       uR"(\n(?:.*\n)*?Rss: +(\d+) kB)"_qs);
        const auto found = entry.match(QString::fromUtf8(smaps.readAll()));
        return found.hasMatch() ? found.captured(1).toInt() : -1;
    }

private:
    QString m_path;
    char* m_bytes = nullptr;
};

} // namespace

class FontPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areGivenBackAndComeAgain_data()
    {
        QTest::addColumn<QString>("name");
        for (const auto* const name : {"font.ttc", "font.otf", "font.ttf"}) {
            QTest::newRow(name) << QString::fromUtf8(name);
        }
    }

    void areGivenBackAndComeAgain()
    {
        QFETCH(const QString, name);
        const MappedFile font(m_folder.filePath(name), PROT_READ);
        QVERIFY(font.standing() >= 40);

        FontPages::giveBack();
        QCOMPARE(font.standing(), 0);
        QCOMPARE(font.read(), MappedFile::content());
        QVERIFY(font.standing() >= 40);
    }

    void whatIsNoFontStays()
    {
        const MappedFile other(m_folder.filePath(u"font.ttc.txt"_qs), PROT_READ);
        FontPages::giveBack();
        QVERIFY(other.standing() >= 40);
    }

    void whatMayHaveBeenWrittenStays()
    {
        MappedFile font(m_folder.filePath(u"written.ttc"_qs), PROT_READ | PROT_WRITE);
        font.bytes()[length / 2] = '!';
        FontPages::giveBack();
        QCOMPARE(font.read()[length / 2], '!');
    }

private:
    QTemporaryDir m_folder;
};

TEST_SUBJECT(FontPagesTest)
#include "FontPagesTest.moc"
