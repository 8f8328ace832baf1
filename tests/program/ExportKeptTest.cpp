// SPDX-License-Identifier: Apache-2.0

#include "ExportKept.h"
#include "DataFolder.h"
#include "InformationSeed.h"
#include "PrintableText.h"
#include "ProgramStart.h"
#include "Subject.h"

#include <QTest>

using CommandLine::Answer;
using CommandLine::Export;

namespace {

/// The names and bytes of everything in the data directory.
QMap<QString, QByteArray> stored(const DataFolder& folder)
{
    QMap<QString, QByteArray> files;
    for (const QString& name : namesIn(folder.path(DataFolder::storage))) {
        files.insert(name, folder.content(DataFolder::storage + u'/' + name));
    }
    return files;
}

/// What keeps the card "id" alone.
QByteArray workspaceKeeping(const QString& id)
{
    InformationWorkspace workspace;
    workspace.saved = {{id, {std::chrono::sys_seconds(), u"理由"_qs, u"备注"_qs}}};
    return InformationWorkspaceCoding::encode(workspace);
}

} // namespace

class ExportKeptTest : public QObject
{
    Q_OBJECT

private:
    std::optional<DataFolder> m_folder;

    Answer exported(const Export& request) const
    {
        return exportKept(request, m_folder->environment());
    }

    void verifyFailure(const Export& request, const QString& reason) const
    {
        QCOMPARE(exported(request), (Answer{u"corvanite-information：%1\n"_qs.arg(reason), 1}));
    }

private Q_SLOTS:
    void init() { m_folder.emplace(); }

    void writesBesideARunningProgramAndLeavesItsFilesAlone()
    {
        ProgramStart running(m_folder->environment());
        const auto signal = InformationSeed::signals().first();
        running.model().toggleKeep(signal.id);
        running.model().updateNote(signal.id, u"我的备注"_qs);
        const auto before = stored(*m_folder);
        const auto file = m_folder->path(u"kept.md"_qs);

        QCOMPARE(exported({.file = file, .workspace = {}}),
                 (Answer{u"收下的内容已写到“%1”。\n"_qs.arg(file), 0}));

        const auto document = QString::fromUtf8(m_folder->content(u"kept.md"_qs));
        for (const QString& text :
             {signal.title, signal.why, signal.timeline.first().summary, u"我的备注"_qs}) {
            QVERIFY2(document.contains(text.left(8)), qPrintable(document));
        }
        QCOMPARE(stored(*m_folder), before);
        QCOMPARE(modeOf(file), 0600);
    }

    void writesNothingInADataDirectoryThatIsNotThere()
    {
        QCOMPARE(exported({.file = u"-"_qs, .workspace = {}}), (Answer{u"# 已收下\n"_qs, 0}));

        QCOMPARE(namesIn(m_folder->support()), QStringList());
    }

    void readsAnotherFileInstead()
    {
        m_folder->store(DataFolder::workspace, workspaceKeeping(u"own"_qs));
        m_folder->store(u"copy.json"_qs, workspaceKeeping(u"copied"_qs));

        const auto answer =
            exported({.file = u"-"_qs, .workspace = m_folder->path(u"copy.json"_qs)});

        QCOMPARE(answer.exitCode, 0);
        QVERIFY(answer.text.contains(u"## copied\n"));
        QVERIFY(!answer.text.contains(u"own"));
    }

    void replacesAnOlderExport()
    {
        m_folder->store(u"kept.json"_qs, "old");

        QCOMPARE(exported({.file = m_folder->path(u"kept.json"_qs), .workspace = {}}).exitCode, 0);

        QVERIFY(m_folder->content(u"kept.json"_qs).startsWith("{\n  \"schemaVersion\""));
    }

    void repeatsNoNameThatSteersTheTerminal()
    {
        const auto file = m_folder->path(u"kept\x1b[2J.md"_qs);

        const auto answer = exported({.file = file, .workspace = {}});

        QCOMPARE(answer.exitCode, 0);
        QVERIFY(QFile::exists(file));
        QCOMPARE(answer.text, u"收下的内容已写到“%1”。\n"_qs.arg(PrintableText::oneLine(file)));
        QVERIFY(!answer.text.contains(u'\x1b'));
    }

    void saysWhatIsWrongWithTheWorkspace()
    {
        const auto missing = m_folder->path(u"missing.json"_qs);
        verifyFailure({.file = u"-"_qs, .workspace = missing},
                      u"没有“%1”这个文件。"_qs.arg(missing));

        m_folder->store(DataFolder::workspace, "{");
        verifyFailure({.file = u"-"_qs, .workspace = {}},
                      u"读不出收下的内容：信息资料库文件已损坏或不完整。"_qs);
        QCOMPARE(m_folder->content(DataFolder::workspace), QByteArray("{"));
    }

    void saysWhyNothingIsWritten()
    {
        const auto nowhere = m_folder->path(u"no folder/kept.md"_qs);
        verifyFailure({.file = nowhere, .workspace = {}},
                      u"“%1”没有写成：没有这个文件夹。"_qs.arg(nowhere));

        QVERIFY(QDir().mkpath(m_folder->path(u"folder.md"_qs)));
        const auto folder = m_folder->path(u"folder.md"_qs);
        verifyFailure({.file = folder, .workspace = {}},
                      u"“%1”没有写成：文件被占用或不是普通文件。"_qs.arg(folder));
    }
};

TEST_SUBJECT(ExportKeptTest)
#include "ExportKeptTest.moc"
