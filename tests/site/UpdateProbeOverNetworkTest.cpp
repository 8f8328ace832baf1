// SPDX-License-Identifier: Apache-2.0

#include "ModelOverNetwork.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QTest>

#include <optional>

class UpdateProbeOverNetworkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_network.emplace(); }

    void offersANewerBuild()
    {
        m_network->setAnswer(SiteClient::appVersionPath,
                             LoopbackSite::document(SiteDocuments::appVersion(u"1.3.0"_qs)));

        m_network->probe();

        QCOMPARE(model().availableUpdate()->version, u"1.3.0"_qs);
        QVERIFY2(m_network->isUntouched(), "It has changed what is shown, or a file.");
    }

    void staysSilentAboutBuilds_data()
    {
        QTest::addColumn<LoopbackSite::Answer>("answer");

        const QByteArray document = SiteDocuments::appVersion(u"1.3.0"_qs);
        const auto changed = [](const QString& key, const QJsonValue& value) {
            return LoopbackSite::document(SiteDocuments::appVersion(u"1.3.0"_qs, {{key, value}}));
        };
        QTest::newRow("not found") << LoopbackSite::document(document, 404);
        QTest::newRow("server error") << LoopbackSite::document(document, 500);
        QTest::newRow("half a body") << LoopbackSite::halfOfAnnounced(document);
        QTest::newRow("endless") << LoopbackSite::Answer();
        QTest::newRow("longer than 256 KiB")
            << LoopbackSite::document(document.leftJustified(256 * 1024 + 1));
        QTest::newRow("closed") << LoopbackSite::reset();
        QTest::newRow("same build") << changed(u"version"_qs, u"1.2.3"_qs);
        QTest::newRow("another schema") << changed(u"schemaVersion"_qs, u"v2"_qs);
        QTest::newRow("no version") << changed(u"version"_qs, QJsonValue::Null);
        QTest::newRow("download from elsewhere")
            << changed(u"downloadUrl"_qs, u"https://elsewhere.example/"_qs);
        QTest::newRow("no checksum") << changed(u"sha256"_qs, QJsonValue::Null);
    }

    void staysSilentAboutBuilds()
    {
        QFETCH(LoopbackSite::Answer, answer);
        m_network->setAnswer(SiteClient::appVersionPath, answer);

        m_network->probe();

        QVERIFY(!model().availableUpdate());
        QVERIFY(!model().hasErrorMessage());
        QVERIFY(!model().packSyncNote());
        QVERIFY2(m_network->isUntouched(), "It has changed what is shown, or a file.");
    }

private:
    InformationModel& model() { return m_network->model(); }

    std::optional<ModelOverNetwork> m_network;
};

TEST_SUBJECT(UpdateProbeOverNetworkTest)
#include "UpdateProbeOverNetworkTest.moc"
