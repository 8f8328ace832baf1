// SPDX-License-Identifier: Apache-2.0

#include "InformationPackSync.h"

#include "FormatExamples.h"
#include "InformationPackCoding.h"
#include "InformationSeed.h"
#include "MemoryFileManager.h"
#include "Subject.h"

#include <QJsonArray>
#include <QTest>

using namespace InformationPackSync;

namespace {

const QString directory = u"/support/Corvanite/Information"_qs;
const QString packPath = directory + u"/information-pack.json"_qs;
const QString retiredPath = directory + u"/retired-signals.json"_qs;

Snapshot decodedExample()
{
    return InformationPackCoding::decode(examplePack()).value();
}

QByteArray packAsOf(const QString& asOf)
{
    return examplePackWith(u"asOf"_qs, asOf);
}

} // namespace

class InformationPackSyncTest : public QObject
{
    Q_OBJECT

    using Kind = SyncError::Kind;

private Q_SLOTS:
    void acceptsAPackWhole() { QCOMPARE(parse(examplePack()), decodedExample()); }

    void acceptsAPackOfTheGreatestLength()
    {
        QCOMPARE(parse(examplePack().leftJustified(1'500'000, ' ')), decodedExample());
    }

    void theFirstFailingCheckDecides_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<SyncError>("error");

        const SyncError tooLarge{.kind = Kind::TooLarge, .byteCount = 1'500'001};
        const SyncError malformed{.kind = Kind::Malformed};
        const auto other = u"corvanite-public-information-pack-v5"_qs;
        const SyncError unsupported{.kind = Kind::UnsupportedSchema, .schemaVersion = other};
        const QJsonArray none;

        QTest::newRow("pack that is too large")
            << examplePack().leftJustified(1'500'001, ' ') << tooLarge;
        QTest::newRow("anything that is too large") << QByteArray(1'500'001, 'x') << tooLarge;
        QTest::newRow("no pack") << QByteArray(1'500'000, 'x') << malformed;
        QTest::newRow("another schema, without a time")
            << examplePackWith({{u"schemaVersion"_qs, other}, {u"asOf"_qs, QJsonValue::Undefined}})
            << malformed;
        QTest::newRow("another schema")
            << examplePackWith(u"schemaVersion"_qs, other) << unsupported;
        QTest::newRow("another schema, without signals")
            << examplePackWith({{u"schemaVersion"_qs, other}, {u"signals"_qs, none}})
            << unsupported;
        QTest::newRow("no signals")
            << examplePackWith(u"signals"_qs, none) << SyncError{.kind = Kind::EmptyPack};
    }

    void theFirstFailingCheckDecides()
    {
        QFETCH(QByteArray, document);
        QFETCH(SyncError, error);

        QCOMPARE(parse(document), std::unexpected(error));
    }

    void isNewerComparesTextByCodePoint_data()
    {
        QTest::addColumn<QString>("asOf");
        QTest::addColumn<QString>("than");
        QTest::addColumn<bool>("newer");

        const auto stamp = u"2026-08-27T04:01:03.784Z"_qs;
        QTest::newRow("later") << stamp << u"2026-08-27T03:18:25.497Z"_qs << true;
        QTest::newRow("equal") << stamp << stamp << false;
        QTest::newRow("earlier") << u"2026-08-27T03:18:25.497Z"_qs << stamp << false;
        QTest::newRow("without a fraction, as text") << u"2026-08-27T04:01:03Z"_qs << stamp << true;
        QTest::newRow("anything after nothing") << u"z"_qs << u""_qs << true;
        QTest::newRow("beyond the basic plane") << u"\U0001F600"_qs << u"\uFFFD"_qs << true;
    }

    void isNewerComparesTextByCodePoint()
    {
        QFETCH(QString, asOf);
        QFETCH(QString, than);
        Snapshot snapshot = decodedExample();
        snapshot.asOf = asOf;

        QTEST(snapshot.isNewer(than), "newer");
    }

    void liveDirectoryLiesInTheDataDirectory()
    {
        MemoryFileManager fileManager;
        QCOMPARE(liveDirectory(fileManager), directory);
        QVERIFY(fileManager.folders.isEmpty());

        fileManager.supportDirectory.reset();
        QCOMPARE(liveDirectory(fileManager), std::nullopt);
    }

    void savingStoresTheBytesAsTheyAre()
    {
        const MemoryFileManager fileManager;
        QVERIFY(saveSnapshot("pack", directory, fileManager).has_value());
        QVERIFY(saveRetiredSignals("retired", directory, fileManager).has_value());

        QCOMPARE(fileManager.folders, QSet<QString>{directory});
        QCOMPARE(fileManager.files, (QHash<QString, QByteArray>{{packPath, "pack"_qba},
                                                                {retiredPath, "retired"_qba}}));
    }

    void savingReportsTheFailure()
    {
        const FileError noSpace{FileError::Reason::NoSpace};
        MemoryFileManager fileManager;
        fileManager.files.insert(packPath, "old"_qba);
        fileManager.writeFailures.insert(packPath, noSpace);
        QCOMPARE(saveSnapshot("new", directory, fileManager).error(), noSpace);
        QCOMPARE(fileManager.files.value(packPath), "old"_qba);

        const FileError denied{FileError::Reason::PermissionDenied};
        fileManager.writeFailure = denied;
        QCOMPARE(saveSnapshot("new", directory, fileManager).error(), denied);
        QCOMPARE(saveRetiredSignals("new", directory, fileManager).error(), denied);
    }

    void aStoredPackCountsWhenItIsNewerThanTheEdition_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<bool>("counts");

        QTest::newRow("a millisecond later") << packAsOf(u"2026-08-27T04:01:03.785Z"_qs) << true;
        QTest::newRow("the same time") << packAsOf(u"2026-08-27T04:01:03.784Z"_qs) << false;
        QTest::newRow("a millisecond earlier") << packAsOf(u"2026-08-27T04:01:03.783Z"_qs) << false;
        QTest::newRow("later, of another schema")
            << examplePackWith(u"schemaVersion"_qs, u"corvanite-public-information-pack-v5"_qs)
            << false;
        QTest::newRow("later, but broken") << examplePack().chopped(2) << false;
        QTest::newRow("empty file") << QByteArray() << false;
    }

    void aStoredPackCountsWhenItIsNewerThanTheEdition()
    {
        QFETCH(QByteArray, document);
        QFETCH(bool, counts);
        MemoryFileManager fileManager;
        fileManager.files.insert(packPath, document);
        const auto snapshot = loadSnapshot(directory, fileManager);

        QCOMPARE(snapshot.has_value(), counts);
        QCOMPARE(loadSnapshotAsOf(directory, fileManager),
                 counts ? std::optional(snapshot->asOf) : std::nullopt);
        QCOMPARE(fileManager.files.value(packPath), document);
    }

    void loadsTheStoredPackWhole()
    {
        const MemoryFileManager fileManager;
        QVERIFY(saveSnapshot(examplePack(), directory, fileManager).has_value());

        QCOMPARE(loadSnapshot(directory, fileManager), decodedExample());
        QCOMPARE(loadSnapshotAsOf(directory, fileManager), decodedExample().asOf);
    }

    void preferredSignalsDoNotDependOnTheStampGiven()
    {
        const MemoryFileManager fileManager;
        QVERIFY(!loadPreferredSignals({}, directory, fileManager));
        QVERIFY(saveSnapshot(examplePack(), directory, fileManager).has_value());

        for (const auto& stamp : {u""_qs, InformationSeed::asOf(), decodedExample().asOf,
                                  u"9999-12-31T00:00:00.000Z"_qs}) {
            QCOMPARE(loadPreferredSignals(stamp, directory, fileManager), decodedExample().signals);
        }
    }

    void loadsTheStoredRetiredList()
    {
        const MemoryFileManager fileManager;
        QVERIFY(
            saveRetiredSignals(formatExample(u"retired-signals.json"_qs), directory, fileManager)
                .has_value());
        QCOMPARE(loadRetiredSignals(directory, fileManager),
                 InformationPackCoding::decodeRetired(formatExample(u"retired-signals.json"_qs)));

        QVERIFY(saveRetiredSignals(R"({"signals": []})", directory, fileManager).has_value());
        QCOMPARE(loadRetiredSignals(directory, fileManager), QList<InformationSignal>());

        QVERIFY(saveRetiredSignals("<html>", directory, fileManager).has_value());
        QCOMPARE(loadRetiredSignals(directory, fileManager), std::nullopt);
    }

    void missingOrUnreadableFilesGiveNothing()
    {
        MemoryFileManager fileManager;
        QCOMPARE(loadSnapshot(directory, fileManager), std::nullopt);
        QCOMPARE(loadSnapshotAsOf(directory, fileManager), std::nullopt);
        QCOMPARE(loadRetiredSignals(directory, fileManager), std::nullopt);

        fileManager.files.insert(packPath, examplePack());
        fileManager.files.insert(retiredPath, formatExample(u"retired-signals.json"_qs));
        fileManager.readFailure = FileError{FileError::Reason::InputOutput};
        QCOMPARE(loadSnapshot(directory, fileManager), std::nullopt);
        QCOMPARE(loadSnapshotAsOf(directory, fileManager), std::nullopt);
        QCOMPARE(loadPreferredSignals({}, directory, fileManager), std::nullopt);
        QCOMPARE(loadRetiredSignals(directory, fileManager), std::nullopt);
    }
};

TEST_SUBJECT(InformationPackSyncTest)
#include "InformationPackSyncTest.moc"
