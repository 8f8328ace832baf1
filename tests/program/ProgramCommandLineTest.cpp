#include "CommandLine.h"
#include "Subject.h"

#include <QTest>

class ProgramCommandLineTest : public QObject
{
    Q_OBJECT

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

        QCOMPARE(CommandLine::answer(arguments, u"1.2.3"_qs), std::nullopt);
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

        const auto answer = CommandLine::answer({option}, u"1.2.3"_qs);

        QVERIFY(answer);
        QVERIFY(answer->text.startsWith(u"用法：corvanite-information [选项]\n"));
        for (const QString& known : {u"--help"_qs, u"--version"_qs}) {
            QVERIFY(answer->text.contains(known));
        }
        QCOMPARE(answer->exitCode, 0);
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

        QCOMPARE(CommandLine::answer({option}, u"1.2.3"_qs),
                 (CommandLine::Answer{u"Corvanite Information 1.2.3\n"_qs, 0}));
    }

    void refusesWhatItDoesNotKnow_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("reason");

        QTest::newRow("option") << QStringList{u"--x"_qs} << u"没有“--x”这个选项。"_qs;
        QTest::newRow("another case") << QStringList{u"--Help"_qs} << u"没有“--Help”这个选项。"_qs;
        QTest::newRow("argument") << QStringList{u"pack.json"_qs} << u"不接受参数“pack.json”。"_qs;
        QTest::newRow("empty") << QStringList{QString()} << u"不接受参数“”。"_qs;
        QTest::newRow("two") << QStringList{u"--help"_qs, u"--version"_qs}
                             << u"一次只能用一个选项。"_qs;
        QTest::newRow("session without its name")
            << QStringList{u"-session"_qs} << u"没有“-session”这个选项。"_qs;
    }

    void refusesWhatItDoesNotKnow()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, reason);

        QCOMPARE(CommandLine::answer(arguments, u"1.2.3"_qs),
                 (CommandLine::Answer{
                     u"corvanite-information：%1\n用 --help 查看用法。\n"_qs.arg(reason), 2}));
    }
};

TEST_SUBJECT(ProgramCommandLineTest)
#include "ProgramCommandLineTest.moc"
