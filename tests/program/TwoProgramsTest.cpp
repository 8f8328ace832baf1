// SPDX-License-Identifier: Apache-2.0

#include "FileCalls.h"
#include "ForkedProcess.h"
#include "NextStart.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QTest>

#include <random>

namespace {

constexpr int actions = 1000;

QString cardId(int number)
{
    return u"card-%1"_qs.arg(number);
}

// Where each program holds a lock of its own: a data directory whose workspace is a link to that of
// another.
void fill(const DataFolder& first, const DataFolder& second)
{
    QStringList ids;
    for (int number = 0; number < actions; ++number) {
        ids.append(cardId(number));
    }
    for (const DataFolder* folder : {&first, &second}) {
        folder->store(DataFolder::pack, SiteDocuments::pack(u"2090-01-01T00:00:00.000Z"_qs, ids));
    }
    first.store(DataFolder::workspace, "{}");
    QVERIFY(QFile::link(first.path(DataFolder::workspace), second.path(DataFolder::workspace)));
}

// Takes each other card, and tells how many of the actions were saved. The pauses before the files
// are replaced make two programs meet there.
void act(const DataFolder& folder, const DataFolder& meeting, int begin,
         const ForkedProcess::Tell& tell)
{
    std::mt19937 random(static_cast<unsigned>(begin));
    ProgramStart program(folder.environment());
    const FileCalls calls(meeting.path().toUtf8(), [&](const FileCall& call) {
        if (call.name == "renameat") {
            ::usleep(random() % 300);
        }
        return Verdict();
    });
    int saved = 0;
    for (int number = begin; number < actions; number += 2) {
        program.model().reduceSimilar(cardId(number));
        saved += program.model().hasErrorMessage() ? 0 : 1;
    }
    tell(QByteArray::number(saved));
}

} // namespace

// Two programs of one folder that do not know of each other.
class TwoProgramsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loseNothing()
    {
        const DataFolder first;
        const DataFolder second;
        fill(first, second);

        QCOMPARE(savedBoth(first, second), actions);

        QCOMPARE(stored(first), actions);
        verifyNextStart(first);
    }

private:
    static int savedBoth(const DataFolder& first, const DataFolder& second)
    {
        ForkedProcess one([&](const auto& tell) { act(first, first, 0, tell); });
        ForkedProcess other([&](const auto& tell) { act(second, first, 1, tell); });
        return one.told().toInt() + other.told().toInt();
    }

    static qsizetype stored(const DataFolder& folder)
    {
        return InformationWorkspaceCoding::decode(folder.content(DataFolder::workspace))
            .value()
            .hidden.size();
    }
};

TEST_SUBJECT(TwoProgramsTest)
#include "TwoProgramsTest.moc"
