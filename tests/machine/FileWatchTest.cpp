// SPDX-License-Identifier: Apache-2.0

#include "FileWatch.h"
#include "FileTree.h"
#include "LocalFileManager.h"
#include "OrdinaryUser.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <functional>

namespace {

using Act = std::function<void(const QDir&)>;

const QString file = u"data/file"_qs;
const QString linked = u"elsewhere/file"_qs;

void replace(const QDir& root, const QString& name)
{
    QVERIFY(LocalFileManager(std::nullopt).replaceFile(root.filePath(name), "new"));
}

void write(const QDir& root, const QString& name)
{
    writeFile(root.filePath(name), "new");
}

void setMode(const QDir& root, const QString& name, mode_t mode)
{
    QCOMPARE(::chmod(QFile::encodeName(root.filePath(name)).constData(), mode), 0);
}

} // namespace

class FileWatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(actAsOrdinaryUser()); }

    void tellsWhatBecomesOfTheFile_data()
    {
        QTest::addColumn<Act>("before");
        QTest::addColumn<Act>("act");

        const Act nothing = [](const QDir&) {};
        const Act replaced = [](const QDir& root) { replace(root, file); };
        const Act removed = [](const QDir& root) { QVERIFY(QFile::remove(root.filePath(file))); };
        const Act link = [](const QDir& root) {
            QVERIFY(QFile::remove(root.filePath(file)));
            QVERIFY(QFile::link(root.filePath(linked), root.filePath(file)));
        };
        const Act unlinked = [link](const QDir& root) {
            link(root);
            QVERIFY(QFile::remove(root.filePath(linked)));
        };
        QTest::newRow("replaced") << nothing << replaced;
        QTest::newRow("written in place")
            << nothing << Act([](const QDir& root) { write(root, file); });
        QTest::newRow("removed") << nothing << removed;
        QTest::newRow("made") << removed << Act([](const QDir& root) { write(root, file); });
        QTest::newRow("closed to readers")
            << nothing << Act([](const QDir& root) { setMode(root, file, 0); });
        QTest::newRow("replaced where it is linked to")
            << link << Act([](const QDir& root) { replace(root, linked); });
        QTest::newRow("written where it is linked to")
            << link << Act([](const QDir& root) { write(root, linked); });
        QTest::newRow("made where it is linked to")
            << unlinked << Act([](const QDir& root) { write(root, linked); });
        QTest::newRow("the folder removed") << nothing << Act([](const QDir& root) {
            QVERIFY(QDir(root.filePath(u"data"_qs)).removeRecursively());
        });
    }

    void tellsWhatBecomesOfTheFile()
    {
        QFETCH(const Act, before);
        QFETCH(const Act, act);
        const QTemporaryDir folder;
        const QDir root = filled(folder);
        before(root);
        FileWatch watch(root.filePath(file));
        QSignalSpy told(&watch, &FileWatch::changed);

        act(root);

        QVERIFY(told.wait());
    }

    // The watcher went on with the file that had been replaced.
    void tellsEachOfManyReplacements()
    {
        const QTemporaryDir folder;
        const QDir root = filled(folder);
        FileWatch watch(root.filePath(file));
        QSignalSpy told(&watch, &FileWatch::changed);

        for (int time = 0; time < 3; ++time) {
            replace(root, file);
            QVERIFY(told.wait());
            write(root, file);
            QVERIFY(told.wait());
        }
    }

    void looksAtOnceAndGoesOnWithWhatIsThere()
    {
        const QTemporaryDir folder;
        const QDir root(folder.path());
        FileWatch watch(root.filePath(file));
        QSignalSpy told(&watch, &FileWatch::changed);
        filled(folder);

        watch.look();

        QCOMPARE(told.size(), 1);
        replace(root, file);
        QVERIFY(told.wait());
    }

    void saysNothingOfAFileThatMayNotBeRead()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_qs));
        const QTemporaryDir folder;
        const QDir root = filled(folder);
        setMode(root, file, 0);
        const FileWatch watch(root.filePath(file));
    }

private:
    static QDir filled(const QTemporaryDir& folder)
    {
        QDir root(folder.path());
        for (const QString& name : {file, linked}) {
            root.mkpath(QFileInfo(name).path());
            write(root, name);
        }
        return root;
    }
};

TEST_SUBJECT(FileWatchTest)
#include "FileWatchTest.moc"
