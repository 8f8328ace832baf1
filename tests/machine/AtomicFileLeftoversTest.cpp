// SPDX-License-Identifier: Apache-2.0

#include "AtomicFile.h"

#include "FileTree.h"
#include "FolderWithFile.h"
#include "Subject.h"

#include <QTemporaryDir>
#include <QTest>

/// What saves that were killed have left, and what removes it.
class AtomicFileLeftoversTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyOwnLeftoversAreRemoved()
    {
        const FolderWithFile folder;
        const QStringList others{u".corvanite-0123456789abcde.tmp"_qs,
                                 u".corvanite-0123456789ABCDEF.tmp"_qs,
                                 u".corvanite-0123456789abcdeg.tmp"_qs,
                                 u".corvanite-0123456789abcdef.tmp.txt"_qs,
                                 u"corvanite-0123456789abcdef.tmp"_qs,
                                 u".corvanite-0123456789abcdef"_qs,
                                 u".lock"_qs,
                                 u"file.tmp"_qs};
        for (const QString& name : others) {
            writeFile(folder.path(name), {});
        }
        QStringList namesBefore = namesIn(folder.path());
        writeFile(folder.path(u".corvanite-0123456789abcdef.tmp"_qs), newBytes);

        AtomicFile::removeLeftovers(folder.path());

        QCOMPARE(namesIn(folder.path()), namesBefore);
    }

    void leftoversAreRemovedWhereALinkLeads_data()
    {
        QTest::addColumn<QString>("target");

        QTest::newRow("absolute") << u"%1/there/file"_qs;
        QTest::newRow("relative") << u"../there/file"_qs;
        QTest::newRow("through another link") << u"../chain"_qs;
        QTest::newRow("to a missing file") << u"../there/missing"_qs;
    }

    void leftoversAreRemovedWhereALinkLeads()
    {
        QFETCH(QString, target);
        const QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(u"here"_qs) && QDir(root.path()).mkpath(u"there"_qs));
        writeFile(root.filePath(u"there/file"_qs), oldBytes);
        writeFile(root.filePath(u"there/.corvanite-0123456789abcdef.tmp"_qs), newBytes);
        writeFile(root.filePath(u"there/file.tmp"_qs), newBytes);
        makeLink(u"there/file"_qs, root.filePath(u"chain"_qs));
        makeLink(target.contains(u'%') ? target.arg(root.path()) : target,
                 root.filePath(u"here/link"_qs));

        AtomicFile::removeLeftovers(root.filePath(u"here"_qs));

        QCOMPARE(namesIn(root.filePath(u"here"_qs)), QStringList{u"link"_qs});
        QCOMPARE(namesIn(root.filePath(u"there"_qs)), (QStringList{u"file"_qs, u"file.tmp"_qs}));
        QCOMPARE(contentOf(root.filePath(u"there/file"_qs)), oldBytes);
    }

    void linksThatLeadToNoFileHaveNoLeftovers()
    {
        const QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(u"here"_qs) && QDir(root.path()).mkpath(u"there"_qs));
        writeFile(root.filePath(u"there/.corvanite-0123456789abcdef.tmp"_qs), newBytes);
        makeLink(u"../there"_qs, root.filePath(u"here/folder"_qs));
        makeLink(u"loop"_qs, root.filePath(u"here/loop"_qs));
        makeLink(u"../nowhere/file"_qs, root.filePath(u"here/lost"_qs));

        AtomicFile::removeLeftovers(root.filePath(u"here"_qs));

        QCOMPARE(namesIn(root.filePath(u"here"_qs)),
                 (QStringList{u"folder"_qs, u"loop"_qs, u"lost"_qs}));
        QCOMPARE(namesIn(root.filePath(u"there"_qs)),
                 QStringList{u".corvanite-0123456789abcdef.tmp"_qs});
    }

    void aMissingFolderHasNoLeftovers()
    {
        const QTemporaryDir folder;

        AtomicFile::removeLeftovers(folder.filePath(u"missing"_qs));

        QCOMPARE(namesIn(folder.path()), QStringList());
    }
};

TEST_SUBJECT(AtomicFileLeftoversTest)
#include "AtomicFileLeftoversTest.moc"
