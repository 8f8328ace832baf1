// SPDX-License-Identifier: Apache-2.0

#include "CutDisk.h"
#include "NextStart.h"
#include "ReaderActions.h"
#include "SiteDocuments.h"
#include "StoredFiles.h"
#include "StoredWorkspace.h"
#include "Subject.h"

#include <QTest>

namespace {

const QString asOf = u"2090-01-01T00:00:00.000Z"_qs;

const QStringList kept{DataFolder::workspace, DataFolder::previous, DataFolder::pack,
                       DataFolder::retired};

} // namespace

// The power is cut while something is stored, and what had not reached the disk by then is lost.
class PowerCutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void afterItAFileIsTheOldOneOrTheNewOne_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QString>("action");

        const QStringList nothing;
        for (const QString& action : {u"keep"_qs, u"note"_qs, u"see"_qs, u"reduce"_qs, u"add"_qs,
                                      u"remove source"_qs, u"reset"_qs, u"refresh"_qs}) {
            QTest::newRow(qUtf8Printable(action)) << nothing << action;
        }
        QTest::newRow("remove") << QStringList{u"keep"_qs} << u"remove"_qs;
        QTest::newRow("undo") << QStringList{u"keep"_qs} << u"undo"_qs;
    }

    void afterItAFileIsTheOldOneOrTheNewOne()
    {
        QFETCH(const QStringList, before);
        QFETCH(const QString, action);
        const auto recording = record(before, action);

        for (const CutDisk::State& state : recording.disk.states()) {
            const DataFolder folder;
            lay(state, folder);
            for (const QString& name : kept) {
                const QByteArray bytes = folder.content(name);
                QVERIFY(bytes == recording.before.value(name) ||
                        bytes == recording.after.value(name));
            }
            verifyNextStart(folder);
            ++m_opened;
        }
    }

    void afterItWhatWasToldIsThere()
    {
        const auto recording = record({}, u"keep"_qs);

        QCOMPARE(recording.disk.present().size(), 1);
        const DataFolder folder;
        lay(*recording.disk.present().begin(), folder);
        QCOMPARE(folder.content(DataFolder::workspace),
                 recording.after.value(DataFolder::workspace));
    }

    // That the disks that are opened are bad enough.
    void aFileThatWasNotSyncedWouldBeFound()
    {
        const auto recording = record({}, u"keep"_qs, [](const FileCall& call) {
            return call.name == "fsync" && call.path.endsWith(".tmp");
        });

        QVERIFY(std::ranges::any_of(recording.disk.states(), [&](const CutDisk::State& state) {
            const DataFolder folder;
            lay(state, folder);
            const QByteArray bytes = folder.content(DataFolder::workspace);
            return bytes != recording.before.value(DataFolder::workspace) &&
                   bytes != recording.after.value(DataFolder::workspace);
        }));
    }

    void manyDisksWereOpened()
    {
        qInfo("%d disks, nothing lost", m_opened);
        QVERIFY(m_opened > 100);
    }

private:
    struct Recording
    {
        QMap<QString, QByteArray> before;
        QMap<QString, QByteArray> after;
        CutDisk disk;
    };

    /// @param isLeftOut what is taken for not made
    static Recording record(
        const QStringList& before, const QString& action,
        const std::function<bool(const FileCall&)>& isLeftOut = [](auto&) { return false; })
    {
        const DataFolder folder;
        folder.store(DataFolder::workspace, storedWorkspace(1));
        folder.store(DataFolder::pack, SiteDocuments::pack(asOf, {u"card"_qs, u"old"_qs}));
        folder.store(DataFolder::retired, SiteDocuments::retired({u"gone"_qs}));
        ProgramStart program(folder.environment());
        program.site.answers = {
            {SiteClient::packPath,
             SiteReply{SiteDocuments::pack(u"2090-01-02T00:00:00.000Z"_qs, {u"card"_qs}), 200}},
            {SiteClient::retiredSignalsPath,
             SiteReply{SiteDocuments::retired({u"gone"_qs, u"old"_qs}), 200}}};
        for (const QString& name : before) {
            ReaderActions::all().value(name)(program.model());
        }
        const auto stored = filesOf(folder);
        CutDisk disk(stateOf(folder));
        {
            const QByteArray root = folder.path().toUtf8() + '/';
            const FileCalls calls(folder.path().toUtf8(), [&](FileCall call) {
                if (!isLeftOut(call)) {
                    call.path = call.path.sliced(root.size());
                    call.source = call.source.sliced(std::min(root.size(), call.source.size()));
                    disk.make(call);
                }
                return Verdict();
            });
            ReaderActions::all().value(action)(program.model());
        }
        return {stored, filesOf(folder), disk};
    }

    static QMap<QString, QByteArray> filesOf(const DataFolder& folder)
    {
        QMap<QString, QByteArray> files;
        for (const QString& name : kept) {
            files.insert(name, folder.content(name));
        }
        return files;
    }

    static CutDisk::State stateOf(const DataFolder& folder)
    {
        CutDisk::State state;
        for (const QString& name : kept) {
            if (QFile::exists(folder.path(name))) {
                state.insert({name.toUtf8(), folder.content(name)});
            }
        }
        return state;
    }

    static void lay(const CutDisk::State& state, const DataFolder& folder)
    {
        for (const auto& [name, bytes] : state) {
            folder.store(QString::fromUtf8(name), bytes);
        }
    }

    int m_opened = 0;
};

TEST_SUBJECT(PowerCutTest)
#include "PowerCutTest.moc"
