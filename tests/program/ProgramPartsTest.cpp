// SPDX-License-Identifier: Apache-2.0

#include "DataFolder.h"
#include "InformationProjection.h"
#include "InformationSeed.h"
#include "ProgramStart.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>

/// What the program is put together from reaches the part that it is for.
class ProgramPartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A pack that brings no history shows what that of the edition has not featured on its day.
    void theEditionsHistoryReachesTheModel()
    {
        const auto day = InformationSeed::selectionHistory().last();
        const QString asOf = day.date + u"T15:59:59.000Z"_qs;
        const DataFolder folder;
        folder.store(DataFolder::pack,
                     SiteDocuments::pack(asOf, day.focusSignalIds + QStringList{u"new"_qs}));

        ProgramStart program(folder.environment());

        const auto& model = program.model();
        QCOMPARE(model.packAsOf(), asOf);
        QCOMPARE(model.focusedSignals().first().id, u"new"_qs);
        QCOMPARE_NE(
            InformationProjection::focusedToday(model.signals(), {}, 1, asOf, {}).first().id,
            u"new"_qs);
    }

    void theClockReachesTheModel()
    {
        const DataFolder folder;
        ProgramStart program(folder.environment());
        const auto signal = program.model().signals().first();

        program.model().toggleKeep(signal.id);

        const auto kept = program.model().savedEntry(signal);
        QVERIFY(kept);
        QCOMPARE(kept->second.savedAt.time_since_epoch().count(), ProgramStart::now);
    }

    void theVersionReachesTheModel_data()
    {
        QTest::addColumn<QString>("offered");
        QTest::addColumn<bool>("isNewer");

        QTest::newRow("its own") << u"1.0.0"_qs << false;
        QTest::newRow("the next") << u"1.0.1"_qs << true;
    }

    void theVersionReachesTheModel()
    {
        QFETCH(const QString, offered);
        const DataFolder folder;
        ProgramStart program(folder.environment());
        program.site.offer(SiteClient::appVersionPath, SiteDocuments::appVersion(offered));

        program.model().probeAppUpdateOnce();

        QTEST(program.model().availableUpdate().has_value(), "isNewer");
    }

    void withoutADataDirectoryEverythingIsShownAndNothingStored()
    {
        const DataFolder folder;
        auto environment = folder.environment();
        environment.remove(u"XDG_DATA_HOME"_qs);
        environment.remove(u"HOME"_qs);

        ProgramStart program(environment);

        auto& model = program.model();
        QCOMPARE(model.signals(), InformationSeed::signals());
        QCOMPARE(model.errorText(), QString());
        QVERIFY(!model.addSource(u"一句想跟踪的话"_qs));
        QCOMPARE(model.errorText(), u"没有可用的本机存储；这次操作没有保存。"_qs);
    }

    void theTokenOfALaterStartReachesTheFirst()
    {
        const QString token = u"shell/1234_TIME5"_qs;
        const DataFolder folder;
        const ProgramStart first(folder.environment());
        QSignalSpy requests(&first.parts.instance(), &ProgramInstance::activationRequested);
        auto environment = folder.environment();
        environment.insert(u"XDG_ACTIVATION_TOKEN"_qs, token);

        const std::unique_ptr<QThread> later(
            QThread::create([&environment] { const ProgramStart program(environment); }));
        later->start();

        QTRY_VERIFY_WITH_TIMEOUT(later->isFinished(), 20000);
        QCOMPARE(requests.size(), 1);
        QCOMPARE(requests.first().first().toByteArray(), token.toLatin1());
    }
};

TEST_SUBJECT(ProgramPartsTest)
#include "ProgramPartsTest.moc"
