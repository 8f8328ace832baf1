// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"
#include "Subject.h"

#include <QTest>

using Command = CommandLine::Command;

class EditionCommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatIsAskedFor_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<CommandLine>("line");

        QTest::newRow("draft") << QStringList{u"draft"_qs, u"a"_qs, u"b"_qs}
                               << CommandLine{Command::Draft, {u"a"_qs, u"b"_qs}};
        QTest::newRow("strict first") << QStringList{u"check"_qs, u"--strict"_qs, u"a"_qs}
                                      << CommandLine{Command::Check, {u"a"_qs}, true};
        QTest::newRow("strict last") << QStringList{u"check"_qs, u"a"_qs, u"--strict"_qs}
                                     << CommandLine{Command::Check, {u"a"_qs}, true};
        QTest::newRow("a path like an option") << QStringList{u"site"_qs, u"--"_qs, u"-a"_qs}
                                               << CommandLine{Command::Site, {u"-a"_qs}};
        QTest::newRow("help") << QStringList{u"--help"_qs} << CommandLine{Command::Help, {}};
    }

    void readsWhatIsAskedFor()
    {
        QFETCH(QStringList, arguments);
        const auto line = CommandLine::parse(arguments);
        QVERIFY(line);
        QTEST(*line, "line");
    }

    void tellsWhatIsWrong_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("complaint");

        QTest::newRow("nothing") << QStringList() << u"没有写要做什么"_qs;
        QTest::newRow("unknown") << QStringList{u"publish"_qs} << u"不认得“publish”"_qs;
        QTest::newRow("that steers the terminal")
            << QStringList{u"\x1b]0;a"_qs} << u"不认得“\uFFFD]0;a”"_qs;
        QTest::newRow("option that does")
            << QStringList{u"check"_qs, u"-\x1b"_qs} << u"check 不认得“-\uFFFD”"_qs;
        QTest::newRow("option of another")
            << QStringList{u"draft"_qs, u"--strict"_qs, u"a"_qs} << u"draft 不认得“--strict”"_qs;
        QTest::newRow("too few") << QStringList{u"next"_qs, u"a"_qs}
                                 << u"next 后面的路径数目不对"_qs;
        QTest::newRow("too many") << QStringList{u"site"_qs, u"a"_qs, u"b"_qs}
                                  << u"site 后面的路径数目不对"_qs;
    }

    void tellsWhatIsWrong()
    {
        QFETCH(QStringList, arguments);
        const auto line = CommandLine::parse(arguments);
        QVERIFY(!line);
        QTEST(line.error(), "complaint");
    }
};

TEST_SUBJECT(EditionCommandLineTest)
#include "EditionCommandLineTest.moc"
