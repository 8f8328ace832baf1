// SPDX-License-Identifier: Apache-2.0

#include "KeptRow.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

class KeptRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsASignalsSourceAndHowItIsFollowed_data()
    {
        QTest::addColumn<InformationFollowUpdateMode>("mode");
        QTest::addColumn<QString>("status");

        QTest::newRow("verified change") << InformationFollowUpdateMode::VerifiedChange
                                         << u"Source of a · 后续实质变化会续到这里"_qs;
        QTest::newRow("snapshot baseline") << InformationFollowUpdateMode::SnapshotBaseline
                                           << u"Source of a · 完整核验后的变化会续到这里"_qs;
        QTest::newRow("editorial watch") << InformationFollowUpdateMode::EditorialWatch
                                         << u"Source of a · 尚未接入自动更新，不会冒充已经同步"_qs;
    }

    void tellsASignalsSourceAndHowItIsFollowed()
    {
        QFETCH(InformationFollowUpdateMode, mode);
        auto signal = sampleSignal(u"a"_qs);
        signal.followTarget.updateMode = mode;

        const auto row = KeptRow::from(signal);

        QCOMPARE(row.itemId, u"a"_qs);
        QVERIFY(!row.custom);
        QCOMPARE(row.title, u"Title of a"_qs);
        QTEST(row.status, "status");
        QCOMPARE(row.address(), u"https://origin.example/a"_qs);
    }

    void hasNoAddressWhenTheOriginalCannotBeOpened_data()
    {
        QTest::addColumn<QString>("original");

        QTest::newRow("nothing") << QString();
        QTest::newRow("no address") << u"见附件"_qs;
        QTest::newRow("no host") << u"https:///a"_qs;
        QTest::newRow("user information") << u"https://user@origin.example/a"_qs;
        QTest::newRow("another scheme") << u"file:///etc/passwd"_qs;
    }

    void hasNoAddressWhenTheOriginalCannotBeOpened()
    {
        QFETCH(QString, original);
        auto signal = sampleSignal(u"a"_qs);
        signal.originalURL = original;

        QCOMPARE(KeptRow::from(signal).address(), QString());
    }

    void showsWhatWasHandedIn()
    {
        const CustomInformationSource source{
            QUuid(u"6b0cbf4e-3a1f-4d0a-9f0e-0d1f6a1b2c3d"_qs), u"https://example.org/a?b=1"_qs, {}};

        const auto row = KeptRow::from(source);

        QVERIFY(row.custom);
        QCOMPARE(row.itemId, u"6b0cbf4e-3a1f-4d0a-9f0e-0d1f6a1b2c3d"_qs);
        QCOMPARE(row.title, u"https://example.org/a?b=1"_qs);
        QCOMPARE(row.status, u"已收下 · 这个来源尚未接入更新"_qs);
        QCOMPARE(row.address(), QString());
    }

    void tellsASignalAndAHandInOfTheSameIdApart()
    {
        const CustomInformationSource source{QUuid::createUuid(), u"一句话"_qs, {}};

        QVERIFY(KeptRow::from(source).key() !=
                KeptRow::from(sampleSignal(source.id.toString(QUuid::WithoutBraces))).key());
    }
};

TEST_SUBJECT(KeptRowTest)
#include "KeptRowTest.moc"
