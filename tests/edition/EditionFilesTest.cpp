// SPDX-License-Identifier: Apache-2.0

#include "EditionFiles.h"
#include "Subject.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class EditionFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesNothingWhereOneFileCannotBeWritten()
    {
        const QTemporaryDir folder;
        const QString first = folder.filePath(u"first.json"_qs);
        QVERIFY(!EditionFiles::replace({{first, "old"}}));
        QVERIFY(QDir(folder.path()).mkdir(u"second.json"_qs));

        const auto trouble =
            EditionFiles::replace({{first, "new"}, {folder.filePath(u"second.json"_qs), "new"}});
        QVERIFY(trouble);
        QCOMPARE(trouble->document, folder.filePath(u"second.json"_qs));
        QVERIFY(trouble->text.startsWith(u"写不了（"));
        QCOMPARE(EditionFiles::read(first).value(), QByteArray("old"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
    }

    void makesMissingFolders()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a/b/c.json"_qs);
        QVERIFY(!EditionFiles::replace({{path, "new"}}));
        QCOMPARE(EditionFiles::read(path).value(), QByteArray("new"));
    }
};

TEST_SUBJECT(EditionFilesTest)
#include "EditionFilesTest.moc"
