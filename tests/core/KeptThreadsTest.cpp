// SPDX-License-Identifier: Apache-2.0

#include "KeptThreads.h"
#include "PlainRules.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

namespace {

constexpr std::chrono::sys_seconds early{std::chrono::seconds(1000)};
constexpr std::chrono::sys_seconds late{std::chrono::seconds(2000)};

// Three signals of one thread, and one of another.
QList<InformationSignal> liveSignals()
{
    return {sampleSignal(u"a"_qs, u"T"_qs), sampleSignal(u"c"_qs, u"T"_qs),
            sampleSignal(u"b"_qs, u"T"_qs), sampleSignal(u"x"_qs, u"X"_qs)};
}

const InformationSignal a = sampleSignal(u"a"_qs, u"T"_qs);
const InformationSignal b = sampleSignal(u"b"_qs, u"T"_qs);
const InformationSignal x = sampleSignal(u"x"_qs, u"X"_qs);
const InformationSignal retired = sampleSignal(u"old"_qs, u"T"_qs);

InformationWorkspace workspaceWith(const InformationWorkspace::SavedMap& saved,
                                   const QList<QString>& following)
{
    InformationWorkspace workspace;
    workspace.saved = saved;
    workspace.following = following;
    return workspace;
}

} // namespace

class KeptThreadsTest : public QObject
{
    Q_OBJECT

private:
    const KeptThreads m_threads{liveSignals()};

    static void addWorkspaces()
    {
        QTest::addColumn<InformationWorkspace>("workspace");

        const SavedInformation saved{early, u"理由"_qs, u"备注"_qs};
        const QList<QString> others{u"other"_qs, u"X"_qs};
        QTest::newRow("empty") << InformationWorkspace();
        QTest::newRow("kept") << workspaceWith({{u"a"_qs, saved}}, {u"T"_qs, u"other"_qs});
        QTest::newRow("kept by another of the thread")
            << workspaceWith({{u"c"_qs, saved}}, {u"other"_qs, u"T"_qs});
        QTest::newRow("kept by several") << workspaceWith(
            {{u"a"_qs, saved}, {u"b"_qs, {late, {}, {}}}, {u"c"_qs, {late, {}, {}}}}, {u"T"_qs});
        QTest::newRow("saved alone") << workspaceWith({{u"b"_qs, saved}}, others);
        QTest::newRow("followed alone") << workspaceWith({{u"x"_qs, saved}}, {u"T"_qs});
        QTest::newRow("saved by one that left")
            << workspaceWith({{u"old"_qs, saved}}, {u"T"_qs, u"other"_qs});
    }

private Q_SLOTS:
    void theLastKeptEntryStandsForTheThread_data()
    {
        QTest::addColumn<InformationWorkspace::SavedMap>("saved");
        QTest::addColumn<QString>("id");

        const SavedInformation earlier{early, {}, {}};
        const SavedInformation later{late, {}, {}};
        using Saved = InformationWorkspace::SavedMap;
        QTest::newRow("none") << Saved() << QString();
        QTest::newRow("one") << Saved{{u"b"_qs, earlier}} << u"b"_qs;
        QTest::newRow("first of two") << Saved{{u"a"_qs, later}, {u"b"_qs, earlier}} << u"a"_qs;
        QTest::newRow("last of two") << Saved{{u"a"_qs, earlier}, {u"b"_qs, later}} << u"b"_qs;
        QTest::newRow("at one time")
            << Saved{{u"a"_qs, earlier}, {u"b"_qs, later}, {u"c"_qs, later}} << u"b"_qs;
        QTest::newRow("of another thread") << Saved{{u"x"_qs, later}} << QString();
        QTest::newRow("of one that left") << Saved{{u"old"_qs, later}} << QString();
    }

    void theLastKeptEntryStandsForTheThread()
    {
        QFETCH(InformationWorkspace::SavedMap, saved);
        QFETCH(QString, id);
        const auto workspace = workspaceWith(saved, {});

        for (const InformationSignal& signal : {a, b, retired}) {
            const auto entry = m_threads.savedEntry(workspace, signal);
            QCOMPARE(entry ? entry->first : QString(), id);
            QVERIFY(!entry || entry->second == saved.at(id));
        }
    }

    void atOneTimeTheFirstByCodePointStands()
    {
        const KeptThreads threads(
            {sampleSignal(u"\U0001F600"_qs, u"T"_qs), sampleSignal(u"\uFFFD"_qs, u"T"_qs)});
        const auto workspace = workspaceWith(
            {{u"\U0001F600"_qs, {early, {}, {}}}, {u"\uFFFD"_qs, {early, {}, {}}}}, {});

        QCOMPARE(threads.savedEntry(workspace, a)->first, u"\uFFFD"_qs);
    }

    void keptIsWhatIsFollowedAndSaved_data() { addWorkspaces(); }

    void keptIsWhatIsFollowedAndSaved()
    {
        QFETCH(InformationWorkspace, workspace);

        const auto kept = m_threads.keptTargets(workspace);
        for (const QString& target : {u"T"_qs, u"X"_qs, u"other"_qs}) {
            QCOMPARE(kept.contains(target), PlainRules::isKept(workspace, liveSignals(), target));
        }
    }

    void keeping_data() { addWorkspaces(); }

    void keeping()
    {
        QFETCH(InformationWorkspace, workspace);

        for (const InformationSignal& signal : {a, b, x, retired}) {
            InformationWorkspace kept = workspace;
            InformationWorkspace expected = workspace;
            m_threads.keep(kept, signal, late);
            PlainRules::keep(expected, liveSignals(), signal, late);
            QCOMPARE(kept, expected);
        }
    }

    void removing_data() { addWorkspaces(); }

    void removing()
    {
        QFETCH(InformationWorkspace, workspace);

        for (const InformationSignal& signal : {a, b, x, retired}) {
            InformationWorkspace without = workspace;
            InformationWorkspace expected = workspace;
            m_threads.remove(without, signal);
            PlainRules::remove(expected, liveSignals(), signal.followTarget.id);
            QCOMPARE(without, expected);
        }
    }

    void writingANote_data() { addWorkspaces(); }

    void writingANote()
    {
        QFETCH(InformationWorkspace, workspace);

        for (const InformationSignal& signal : {a, b, x}) {
            InformationWorkspace noted = workspace;
            InformationWorkspace expected = workspace;
            m_threads.writeNote(noted, signal, u" 新备注 "_qs, late);
            PlainRules::note(expected, liveSignals(), signal, u" 新备注 "_qs, late);
            QCOMPARE(noted, expected);
        }
    }

    void aNoteIsAsAFileWouldGiveItBack()
    {
        InformationWorkspace workspace;
        m_threads.writeNote(workspace, a, u"半个字符 "_qs + QChar(0xD83D), early);

        QCOMPARE(workspace.saved.at(u"a"_qs).note, u"半个字符 \uFFFD"_qs);
    }

    void aSearchFindsSignals_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("found");

        const QStringList both{u"a"_qs, u"x"_qs};
        const QStringList kept{u"a"_qs};
        const QStringList other{u"x"_qs};
        QTest::newRow("nothing") << u""_qs << both;
        QTest::newRow("white space") << u" \t\n"_qs << both;
        QTest::newRow("title") << u"title of a"_qs << kept;
        QTest::newRow("source") << u"SOURCE OF X"_qs << other;
        QTest::newRow("target's label") << u"label of target:x"_qs << other;
        QTest::newRow("target's scope") << u"scope of target:a"_qs << kept;
        QTest::newRow("reason") << u"KEPT FOR"_qs << kept;
        QTest::newRow("note") << u" my NOTE\n"_qs << kept;
        QTest::newRow("why of one without an entry") << u"why x"_qs << other;
        QTest::newRow("why of one with an entry") << u"why a"_qs << QStringList();
        QTest::newRow("from text to text") << u"title of a source of a label"_qs << kept;
        QTest::newRow("summary") << u"summary"_qs << QStringList();
        QTest::newRow("in both") << u"of"_qs << both;
    }

    void aSearchFindsSignals()
    {
        QFETCH(QString, search);
        const auto workspace =
            workspaceWith({{u"b"_qs, {early, u"Kept for"_qs, u"My note"_qs}}}, {});

        const QList<InformationSignal> signals{a, x};
        const auto texts = m_threads.searchedTexts(signals, workspace);

        QTEST(idsOf(KeptThreads::found(search, signals, texts)), "found");
    }

    void aSearchFindsHandIns_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<bool>("found");

        QTest::newRow("nothing") << u""_qs << true;
        QTest::newRow("white space") << u" \n"_qs << true;
        QTest::newRow("part") << u" 本地 m"_qs << true;
        QTest::newRow("other") << u"云端"_qs << false;
    }

    void aSearchFindsHandIns()
    {
        QFETCH(QString, search);
        const QList<CustomInformationSource> sources{{QUuid(), u"跟踪 本地 Model"_qs, early}};

        QTEST(!KeptThreads::found(search, sources).isEmpty(), "found");
    }
};

TEST_SUBJECT(KeptThreadsTest)
#include "KeptThreadsTest.moc"
