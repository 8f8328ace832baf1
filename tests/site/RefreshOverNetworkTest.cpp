// SPDX-License-Identifier: Apache-2.0

#include "ModelOverNetwork.h"
#include "SiteDocuments.h"
#include "Subject.h"
#include "TestCertificates.h"

#include <QTest>

#include <optional>

using namespace RefreshSample;
using namespace std::chrono_literals;

namespace {

const QByteArray laterPack = SiteDocuments::pack(laterAsOf, {u"a"_qs, u"b"_qs});
const QByteArray newRetired = SiteDocuments::retired({u"old"_qs});

} // namespace

class RefreshOverNetworkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_certificates.trust(); }
    void init() { m_network.emplace(); }

    void showsAndStoresANewerPack_data()
    {
        QTest::addColumn<bool>("isSecure");
        QTest::addColumn<QByteArray>("pack");

        QTest::newRow("plain, loopback") << false << laterPack;
        QTest::newRow("secure") << true << laterPack;
        QTest::newRow("of the greatest length") << true << laterPack.leftJustified(1'500'000);
    }

    void showsAndStoresANewerPack()
    {
        QFETCH(bool, isSecure);
        QFETCH(QByteArray, pack);
        if (isSecure) {
            m_network.emplace(std::make_unique<LoopbackSite>(m_certificates.trusted()));
        }
        m_network->setAnswer(SiteClient::packPath, LoopbackSite::document(pack));
        m_network->setAnswer(SiteClient::retiredSignalsPath, LoopbackSite::document(newRetired));

        m_network->refresh();

        QCOMPARE(*model().packSyncNote(), u"已同步 2 条 · 2026-09-03"_qs);
        QCOMPARE(idsOf(model().signals()), (QStringList{u"a"_qs, u"b"_qs}));
        QCOMPARE(idsOf(model().retiredSignals()), QStringList{u"old"_qs});
        QCOMPARE(m_network->sample.files.files,
                 (QHash<QString, QByteArray>{{packFile, pack}, {retiredFile, newRetired}}));
        QCOMPARE(m_network->site->requestLines(),
                 (QList<QByteArray>{"GET /information-pack.json HTTP/1.1",
                                    "GET /retired-signals.json HTTP/1.1"}));
    }

    void leavesContentThatIsNotOlder_data()
    {
        QTest::addColumn<QString>("asOf");
        QTest::addColumn<QString>("note");

        QTest::newRow("same") << shownAsOf << u"已是最新（1 条，2026-09-02）"_qs;
        QTest::newRow("older") << u"2026-09-01T04:00:00Z"_qs << u"已是最新（1 条，2026-09-01）"_qs;
    }

    void leavesContentThatIsNotOlder()
    {
        QFETCH(QString, asOf);
        m_network->setAnswer(SiteClient::packPath,
                             LoopbackSite::document(SiteDocuments::pack(asOf, {u"a"_qs})));

        m_network->refresh();

        QTEST(*model().packSyncNote(), "note");
        QVERIFY2(m_network->isUntouched(), "It has changed what is shown, or a file.");
        QCOMPARE(m_network->site->requestLines(),
                 QList<QByteArray>{"GET /information-pack.json HTTP/1.1"});
    }

    void failsWithoutAChange_data()
    {
        QTest::addColumn<LoopbackSite::Answer>("answer");

        const QByteArray half = laterPack.first(laterPack.size() / 2);
        QTest::newRow("not found") << LoopbackSite::document(laterPack, 404);
        QTest::newRow("server error") << LoopbackSite::document(laterPack, 500);
        QTest::newRow("no content") << LoopbackSite::document({}, 204);
        QTest::newRow("redirect loop") << LoopbackSite::redirect(SiteClient::packPath);
        QTest::newRow("half a body") << LoopbackSite::halfOfAnnounced(laterPack);
        QTest::newRow("half a body, not announced") << LoopbackSite::unannounced(half);
        QTest::newRow("endless") << LoopbackSite::Answer();
        QTest::newRow("one byte too long")
            << LoopbackSite::document(laterPack.leftJustified(1'500'001));
        QTest::newRow("not HTTP") << LoopbackSite::raw("220 mail.example ESMTP\r\n\r\n");
        QTest::newRow("closed") << LoopbackSite::reset();
        QTest::newRow("broken compression")
            << LoopbackSite::document(laterPack, 200, "Content-Encoding: gzip\r\n");
        QTest::newRow("page of a captive portal")
            << LoopbackSite::document("<html>登录</html>", 200, "Content-Type: text/html\r\n");
    }

    void failsWithoutAChange()
    {
        QFETCH(LoopbackSite::Answer, answer);
        m_network->setAnswer(SiteClient::packPath, answer);

        m_network->refresh();

        QCOMPARE(*model().packSyncNote(), failedNote);
        QVERIFY2(m_network->isUntouched(), "It has changed what is shown, or a file.");
    }

    void failsOnASiteThatIsTooSlow_data()
    {
        QTest::addColumn<LoopbackSite::Answer>("answer");
        QTest::addColumn<bool>("isSilent");

        QTest::newRow("says nothing") << LoopbackSite::silence() << true;
        QTest::newRow("stops in the middle") << LoopbackSite::stall("{") << true;
        QTest::newRow("never comes to an end") << LoopbackSite::drip(5ms) << false;
    }

    void failsOnASiteThatIsTooSlow()
    {
        QFETCH(LoopbackSite::Answer, answer);
        QFETCH(bool, isSilent);
        auto limits = SiteAnswers::patient;
        (isSilent ? limits.silence : limits.overall) = 200ms;
        m_network.emplace(std::make_unique<LoopbackSite>(), limits);
        m_network->setAnswer(SiteClient::packPath, answer);

        m_network->refresh();

        QCOMPARE(*model().packSyncNote(), failedNote);
        QVERIFY2(m_network->isUntouched(), "It has changed what is shown, or a file.");
    }

    void failsOnABadCertificate_data()
    {
        QTest::addColumn<QSslConfiguration>("tls");

        QTest::newRow("another host's") << m_certificates.forAnotherHost();
        QTest::newRow("expired") << m_certificates.expired();
        QTest::newRow("self-signed") << m_certificates.selfSigned();
    }

    void failsOnABadCertificate()
    {
        QFETCH(QSslConfiguration, tls);
        m_network.emplace(std::make_unique<LoopbackSite>(tls));
        m_network->setAnswer(SiteClient::packPath, LoopbackSite::document(laterPack));

        m_network->refresh();

        QCOMPARE(*model().packSyncNote(), failedNote);
        QVERIFY2(m_network->isUntouched(), "It has changed what is shown, or a file.");
        QVERIFY(m_network->site->requests().isEmpty());
    }

    void failsWithoutASite()
    {
        m_network->site.reset();

        m_network->refresh();

        QCOMPARE(*model().packSyncNote(), failedNote);
        QVERIFY2(m_network->isUntouched(), "It has changed what is shown, or a file.");
    }

    void keepsTheRetiredList_data()
    {
        QTest::addColumn<LoopbackSite::Answer>("answer");

        QTest::newRow("not found") << LoopbackSite::document(newRetired, 404);
        QTest::newRow("server error") << LoopbackSite::document(newRetired, 500);
        QTest::newRow("half a body") << LoopbackSite::halfOfAnnounced(newRetired);
        QTest::newRow("endless") << LoopbackSite::Answer();
        QTest::newRow("closed") << LoopbackSite::reset();
    }

    void keepsTheRetiredList()
    {
        QFETCH(LoopbackSite::Answer, answer);
        m_network->setAnswer(SiteClient::packPath, LoopbackSite::document(laterPack));
        m_network->setAnswer(SiteClient::retiredSignalsPath, answer);

        m_network->refresh();

        QCOMPARE(*model().packSyncNote(), u"已同步 2 条 · 2026-09-03"_qs);
        QCOMPARE(idsOf(model().signals()), (QStringList{u"a"_qs, u"b"_qs}));
        QCOMPARE(idsOf(model().retiredSignals()), QStringList{u"gone"_qs});
        QCOMPARE(m_network->sample.files.files,
                 (QHash<QString, QByteArray>{{packFile, laterPack}}));
    }

    void asksForNothingElse()
    {
        m_network->setAnswer(SiteClient::packPath, LoopbackSite::document(laterPack));
        m_network->setAnswer(SiteClient::retiredSignalsPath, LoopbackSite::document(newRetired));
        m_network->setAnswer(SiteClient::appVersionPath,
                             LoopbackSite::document(SiteDocuments::appVersion(u"1.2.3"_qs)));

        m_network->probe();
        m_network->refresh();
        model().probeAppUpdateOnce();
        m_network->refresh();

        QCOMPARE(m_network->site->requestLines(),
                 (QList<QByteArray>{"GET /information-app-version.json HTTP/1.1",
                                    "GET /information-pack.json HTTP/1.1",
                                    "GET /retired-signals.json HTTP/1.1",
                                    "GET /information-pack.json HTTP/1.1"}));
        QCOMPARE(*model().packSyncNote(), u"已是最新（2 条，2026-09-03）"_qs);
    }

    void endsQuietlyWhenTheProgramQuits()
    {
        m_network->setAnswer(SiteClient::packPath, LoopbackSite::stall("{"));
        m_network->setAnswer(SiteClient::appVersionPath, LoopbackSite::silence());
        model().refreshPackFromSite();
        model().probeAppUpdateOnce();
        QTRY_COMPARE_WITH_TIMEOUT(m_network->site->requests().size(), 2, 60'000);

        m_network->quit();

        QVERIFY(m_network->sample.files.files.isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(m_network->site->connectionsOpen(), 0, 60'000);
    }

private:
    InformationModel& model() { return m_network->model(); }

    const TestCertificates m_certificates;
    std::optional<ModelOverNetwork> m_network;
};

TEST_SUBJECT(RefreshOverNetworkTest)
#include "RefreshOverNetworkTest.moc"
