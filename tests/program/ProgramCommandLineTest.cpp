// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"
#include "Subject.h"

#include <QTest>

using CommandLine::Export;

class ProgramCommandLineTest : public QObject
{
    Q_OBJECT

private:
    /// Of arguments that are answered.
    static CommandLine::Answer answerTo(const QStringList& arguments)
    {
        return std::get<CommandLine::Answer>(CommandLine::request(arguments, u"1.2.3"_qs));
    }

private Q_SLOTS:
    void opensTheWindow_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("by itself") << QStringList();
        QTest::newRow("for a session manager") << QStringList{u"-session"_qs, u"10a_42"_qs};
    }

    void opensTheWindow()
    {
        QFETCH(const QStringList, arguments);

        QVERIFY(CommandLine::request(arguments, u"1.2.3"_qs) ==
                CommandLine::Request(CommandLine::Window()));
    }

    void saysHowItIsUsed_data()
    {
        QTest::addColumn<QString>("option");

        QTest::newRow("long") << u"--help"_qs;
        QTest::newRow("short") << u"-h"_qs;
    }

    void saysHowItIsUsed()
    {
        QFETCH(const QString, option);

        const auto answer = answerTo({option});

        QVERIFY(answer.text.startsWith(u"用法：corvanite-information [选项]\n"));
        for (const QString& known : {u"--export-kept"_qs, u"--help"_qs, u"--version"_qs}) {
            QVERIFY(answer.text.contains(known));
        }
        QCOMPARE(answer.exitCode, 0);
    }

    void saysItsVersion_data()
    {
        QTest::addColumn<QString>("option");

        QTest::newRow("long") << u"--version"_qs;
        QTest::newRow("short") << u"-v"_qs;
    }

    void saysItsVersion()
    {
        QFETCH(const QString, option);

        QCOMPARE(answerTo({option}), (CommandLine::Answer{u"Corvanite Information 1.2.3\n"_qs, 0}));
    }

    void exportsWhatIsKept_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("file");
        QTest::addColumn<std::optional<QString>>("workspace");

        const QString option = u"--export-kept"_qs;
        const std::optional<QString> own;
        QTest::newRow("Markdown") << QStringList{option, u"a.md"_qs} << u"a.md"_qs << own;
        QTest::newRow("JSON") << QStringList{option, u"a.json"_qs} << u"a.json"_qs << own;
        QTest::newRow("bookmarks") << QStringList{option, u"a.html"_qs} << u"a.html"_qs << own;
        QTest::newRow("output") << QStringList{option, u"-"_qs} << u"-"_qs << own;
        QTest::newRow("of another file") << QStringList{option, u"-"_qs, u"copy.json"_qs} << u"-"_qs
                                         << std::optional(u"copy.json"_qs);
    }

    void exportsWhatIsKept()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, file);
        QFETCH(const std::optional<QString>, workspace);

        QVERIFY(CommandLine::request(arguments, u"1.2.3"_qs) ==
                CommandLine::Request(Export{.file = file, .workspace = workspace}));
    }

    void refusesWhatItDoesNotKnow_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("reason");

        QTest::newRow("option") << QStringList{u"--x"_qs} << u"没有“--x”这个选项。"_qs;
        QTest::newRow("another case") << QStringList{u"--Help"_qs} << u"没有“--Help”这个选项。"_qs;
        QTest::newRow("argument") << QStringList{u"pack.json"_qs} << u"不接受参数“pack.json”。"_qs;
        QTest::newRow("that steers the terminal")
            << QStringList{u"\x1b]0;a\nb\r"_qs} << u"不接受参数“\uFFFD]0;a b ”。"_qs;
        QTest::newRow("empty") << QStringList{QString()} << u"不接受参数“”。"_qs;
        QTest::newRow("two") << QStringList{u"--help"_qs, u"--version"_qs}
                             << u"一次只能用一个选项。"_qs;
        QTest::newRow("export to nowhere")
            << QStringList{u"--export-kept"_qs}
            << u"--export-kept 后面写一个文件，还可以再写一份资料库。"_qs;
        QTest::newRow("export to three")
            << QStringList{u"--export-kept"_qs, u"a.md"_qs, u"b.md"_qs, u"c.md"_qs}
            << u"--export-kept 后面写一个文件，还可以再写一份资料库。"_qs;
        QTest::newRow("export to another format") << QStringList{u"--export-kept"_qs, u"a.pdf"_qs}
                                                  << u"“a.pdf”不是以 .md、.json 或 .html 结尾。"_qs;
        QTest::newRow("session without its name")
            << QStringList{u"-session"_qs} << u"没有“-session”这个选项。"_qs;
    }

    void refusesWhatItDoesNotKnow()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, reason);

        QCOMPARE(answerTo(arguments),
                 (CommandLine::Answer{
                     u"corvanite-information：%1\n用 --help 查看用法。\n"_qs.arg(reason), 2}));
    }
};

TEST_SUBJECT(ProgramCommandLineTest)
#include "ProgramCommandLineTest.moc"
