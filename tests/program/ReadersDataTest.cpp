// SPDX-License-Identifier: Apache-2.0

#include "DataFolder.h"
#include "ProgramStart.h"
#include "StoredWorkspace.h"
#include "Subject.h"

#include <QProcess>
#include <QTest>

namespace {

// What the readers' document says is to be typed for going back to the day before.
QString commandsForGoingBack()
{
    static const QRegularExpression commands(u"\n## 回到前一天\n.*?\n```sh\n(.*?)```"_qs,
                                             QRegularExpression::DotMatchesEverythingOption);
    const QString document = QString::fromUtf8(contentOf(QStringLiteral(READERS_DATA)));
    return commands.match(document).captured(1);
}

void type(const QString& commands, const QProcessEnvironment& environment)
{
    QProcess shell;
    shell.setProcessEnvironment(environment);
    shell.start(u"sh"_qs, {u"-e"_qs, u"-c"_qs, commands});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitCode(), 0);
}

} // namespace

// What docs/readers-data.md tells readers to do.
class ReadersDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goingBackToTheDayBefore_data()
    {
        QTest::addColumn<bool>("isNamed");

        QTest::newRow("where the environment names it") << true;
        QTest::newRow("in the home folder") << false;
    }

    void goingBackToTheDayBefore()
    {
        QFETCH(const bool, isNamed);
        const DataFolder folder;
        auto environment = folder.environment();
        if (!isNamed) {
            const QString home = folder.path(u"home"_qs);
            QVERIFY(QDir().mkpath(home + u"/.local"_qs));
            QVERIFY(QFile::link(folder.support(), home + u"/.local/share"_qs));
            environment.insert(u"HOME"_qs, home);
            environment.remove(u"XDG_DATA_HOME"_qs);
        }
        const QByteArray dayBefore = storedWorkspace();
        folder.store(DataFolder::workspace, dayBefore);
        const QByteArray today = actTwice(folder, environment);

        type(commandsForGoingBack(), environment);

        const ProgramStart program(environment);
        QCOMPARE(folder.content(DataFolder::workspace), dayBefore);
        QCOMPARE(folder.content(DataFolder::storage + u"/workspace-v1.later.json"_qs), today);
        QCOMPARE(modeOf(folder.path(DataFolder::previous)), 0600);
    }

private:
    // The file after two actions of one day.
    static QByteArray actTwice(const DataFolder& folder, const QProcessEnvironment& environment)
    {
        ProgramStart program(environment);
        program.model().resetPreferences();
        folder.setWrittenAt(DataFolder::previous, ProgramStart::now);
        program.model().addSource(u"一句想跟踪的话"_qs);
        return folder.content(DataFolder::workspace);
    }
};

TEST_SUBJECT(ReadersDataTest)
#include "ReadersDataTest.moc"
