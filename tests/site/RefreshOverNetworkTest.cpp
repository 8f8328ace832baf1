#include "LoopbackSite.h"
#include "NetworkSiteClient.h"
#include "SampleModel.h"
#include "SiteDocuments.h"
#include "Subject.h"
#include "TestCertificates.h"

#include <QTest>

#include <memory>

using namespace std::chrono_literals;

namespace {

const QString packPath = u"/information-pack.json"_qs;
const QString retiredPath = u"/retired-signals.json"_qs;
const QString versionPath = u"/information-app-version.json"_qs;
const QString packFile = u"/support/Corvanite/Information/information-pack.json"_qs;
const QString retiredFile = u"/support/Corvanite/Information/retired-signals.json"_qs;

const QString shownAsOf = u"2026-09-02T04:00:00Z"_qs;
const QString laterAsOf = u"2026-09-03T04:00:00Z"_qs;
const QByteArray laterPack = SiteDocuments::pack(laterAsOf, {u"a"_qs, u"b"_qs});
const QByteArray newRetired = SiteDocuments::retired({u"old"_qs});

constexpr int patience = 60'000;
// Limits that only the tests about them meet.
constexpr NetworkSiteClient::Limits patient{.silence = 1h, .overall = 1h};

InformationContent shownContent()
{
    return {{sampleSignal(u"old"_qs)},
            {sampleSignal(u"gone"_qs)},
            {{u"2026-09-01"_qs, {u"old"_qs}, 3}},
            shownAsOf};
}

/// The site as another client reaches it, counting the answers that came.
class CountingSiteClient final : public SiteClient
{
public:
    explicit CountingSiteClient(std::unique_ptr<SiteClient> client) : m_client(std::move(client)) {}

    /// Which the documents of these tests lead to.
    QString host() const override { return u"corvanite.example"_qs; }
    QUrl page(const QString& path) const override { return m_client->page(path); }

    QCoro::Task<Answer> get(QString path, qsizetype byteLimit) override
    {
        Answer answer = co_await m_client->get(path, byteLimit);
        ++answers;
        co_return answer;
    }

    int answers = 0;

private:
    const std::unique_ptr<SiteClient> m_client;
};

} // namespace

Q_DECLARE_METATYPE(LoopbackSite::Answer)

class RefreshOverNetworkTest : public QObject
{
    Q_OBJECT

private:
    const TestCertificates m_certificates;
    std::unique_ptr<LoopbackSite> m_site;
    std::optional<SampleModel> m_sample;
    std::unique_ptr<CountingSiteClient> m_client;
    std::unique_ptr<InformationModel> m_model;

    void reach(std::unique_ptr<LoopbackSite> site, NetworkSiteClient::Limits limits = patient)
    {
        m_model.reset();
        m_site = std::move(site);
        m_client = std::make_unique<CountingSiteClient>(std::make_unique<NetworkSiteClient>(
            ProductSite::fromOrigin(m_site->origin()).value(), limits));
        m_model = m_sample->make(shownContent(), *m_client, m_sample->files);
    }

    void refresh()
    {
        m_model->refreshPackFromSite();
        QTRY_VERIFY_WITH_TIMEOUT(!m_model->isSyncingPack(), patience);
    }

    void probe()
    {
        m_model->probeAppUpdateOnce();
        QTRY_COMPARE_WITH_TIMEOUT(m_client->answers, 1, patience);
    }

    void verifyNothingChanged() const
    {
        QCOMPARE(m_model->signals(), shownContent().signals());
        QCOMPARE(m_model->retiredSignals(), shownContent().retiredSignals());
        QCOMPARE(m_model->selectionDays(), shownContent().selectionDays());
        QCOMPARE(m_model->packAsOf(), shownAsOf);
        QVERIFY(m_sample->files.files.isEmpty());
    }

private Q_SLOTS:
    void initTestCase()
    {
        auto tls = QSslConfiguration::defaultConfiguration();
        tls.setCaCertificates({m_certificates.authority()});
        QSslConfiguration::setDefaultConfiguration(tls);
    }

    void init()
    {
        m_sample.emplace();
        m_sample->hasRepository = false;
        m_sample->runningVersion = u"1.2.3"_qs;
        reach(std::make_unique<LoopbackSite>());
    }

    void cleanup()
    {
        m_model.reset();
        m_client.reset();
        m_site.reset();
    }

    void showsAndStoresANewerPack_data();
    void showsAndStoresANewerPack();
    void leavesContentThatIsNotOlder_data();
    void leavesContentThatIsNotOlder();
    void failsWithoutAChange_data();
    void failsWithoutAChange();
    void failsOnASiteThatIsTooSlow_data();
    void failsOnASiteThatIsTooSlow();
    void failsOnABadCertificate_data();
    void failsOnABadCertificate();
    void failsWithoutASite();
    void keepsTheRetiredList_data();
    void keepsTheRetiredList();
    void offersANewerBuild();
    void staysSilentAboutBuilds_data();
    void staysSilentAboutBuilds();
    void asksForNothingElse();
    void endsQuietlyWhenTheProgramQuits();
};

void RefreshOverNetworkTest::showsAndStoresANewerPack_data()
{
    QTest::addColumn<bool>("isSecure");
    QTest::addColumn<QByteArray>("pack");

    QTest::newRow("plain, loopback") << false << laterPack;
    QTest::newRow("secure") << true << laterPack;
    QTest::newRow("of the greatest length") << true << laterPack.leftJustified(1'500'000);
}

void RefreshOverNetworkTest::showsAndStoresANewerPack()
{
    QFETCH(bool, isSecure);
    QFETCH(QByteArray, pack);
    if (isSecure) {
        reach(std::make_unique<LoopbackSite>(m_certificates.trusted()));
    }
    m_site->setAnswer(packPath, LoopbackSite::document(pack));
    m_site->setAnswer(retiredPath, LoopbackSite::document(newRetired));

    refresh();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 2 条 · 2026-09-03"_qs);
    QCOMPARE(idsOf(m_model->signals()), (QStringList{u"a"_qs, u"b"_qs}));
    QCOMPARE(idsOf(m_model->retiredSignals()), QStringList{u"old"_qs});
    QCOMPARE(m_sample->files.files,
             (QHash<QString, QByteArray>{{packFile, pack}, {retiredFile, newRetired}}));
    QCOMPARE(m_site->requestLines(), (QList<QByteArray>{"GET /information-pack.json HTTP/1.1",
                                                        "GET /retired-signals.json HTTP/1.1"}));
}

void RefreshOverNetworkTest::leavesContentThatIsNotOlder_data()
{
    QTest::addColumn<QString>("asOf");
    QTest::addColumn<QString>("note");

    QTest::newRow("same") << shownAsOf << u"已是最新（1 条，2026-09-02）"_qs;
    QTest::newRow("older") << u"2026-09-01T04:00:00Z"_qs << u"已是最新（1 条，2026-09-01）"_qs;
}

void RefreshOverNetworkTest::leavesContentThatIsNotOlder()
{
    QFETCH(QString, asOf);
    m_site->setAnswer(packPath, LoopbackSite::document(SiteDocuments::pack(asOf, {u"a"_qs})));

    refresh();

    QTEST(*m_model->packSyncNote(), "note");
    verifyNothingChanged();
    QCOMPARE(m_site->requestLines(), QList<QByteArray>{"GET /information-pack.json HTTP/1.1"});
}

void RefreshOverNetworkTest::failsWithoutAChange_data()
{
    QTest::addColumn<LoopbackSite::Answer>("answer");

    const QByteArray half = laterPack.first(laterPack.size() / 2);
    QTest::newRow("not found") << LoopbackSite::document(laterPack, 404);
    QTest::newRow("server error") << LoopbackSite::document(laterPack, 500);
    QTest::newRow("no content") << LoopbackSite::document({}, 204);
    QTest::newRow("redirect loop") << LoopbackSite::redirect(packPath);
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

void RefreshOverNetworkTest::failsWithoutAChange()
{
    QFETCH(LoopbackSite::Answer, answer);
    m_site->setAnswer(packPath, answer ? answer : m_site->endless(200));

    refresh();

    QCOMPARE(*m_model->packSyncNote(), u"同步失败，继续使用当前内容"_qs);
    verifyNothingChanged();
}

void RefreshOverNetworkTest::failsOnASiteThatIsTooSlow_data()
{
    QTest::addColumn<LoopbackSite::Answer>("answer");
    QTest::addColumn<bool>("isSilent");

    QTest::newRow("says nothing") << LoopbackSite::silence() << true;
    QTest::newRow("stops in the middle") << LoopbackSite::stall("{") << true;
    QTest::newRow("never comes to an end") << LoopbackSite::drip(5ms) << false;
}

void RefreshOverNetworkTest::failsOnASiteThatIsTooSlow()
{
    QFETCH(LoopbackSite::Answer, answer);
    QFETCH(bool, isSilent);
    reach(std::make_unique<LoopbackSite>(), {.silence = isSilent ? 200ms : patient.silence,
                                             .overall = isSilent ? patient.overall : 200ms});
    m_site->setAnswer(packPath, answer);

    refresh();

    QCOMPARE(*m_model->packSyncNote(), u"同步失败，继续使用当前内容"_qs);
    verifyNothingChanged();
}

void RefreshOverNetworkTest::failsOnABadCertificate_data()
{
    QTest::addColumn<QSslConfiguration>("tls");

    QTest::newRow("another host's") << m_certificates.forAnotherHost();
    QTest::newRow("expired") << m_certificates.expired();
    QTest::newRow("self-signed") << m_certificates.selfSigned();
}

void RefreshOverNetworkTest::failsOnABadCertificate()
{
    QFETCH(QSslConfiguration, tls);
    reach(std::make_unique<LoopbackSite>(tls));
    m_site->setAnswer(packPath, LoopbackSite::document(laterPack));

    refresh();

    QCOMPARE(*m_model->packSyncNote(), u"同步失败，继续使用当前内容"_qs);
    verifyNothingChanged();
    QVERIFY(m_site->requests().isEmpty());
}

void RefreshOverNetworkTest::failsWithoutASite()
{
    m_site.reset();

    refresh();

    QCOMPARE(*m_model->packSyncNote(), u"同步失败，继续使用当前内容"_qs);
    verifyNothingChanged();
}

void RefreshOverNetworkTest::keepsTheRetiredList_data()
{
    QTest::addColumn<LoopbackSite::Answer>("answer");

    QTest::newRow("not found") << LoopbackSite::document(newRetired, 404);
    QTest::newRow("server error") << LoopbackSite::document(newRetired, 500);
    QTest::newRow("half a body") << LoopbackSite::halfOfAnnounced(newRetired);
    QTest::newRow("endless") << LoopbackSite::Answer();
    QTest::newRow("closed") << LoopbackSite::reset();
}

void RefreshOverNetworkTest::keepsTheRetiredList()
{
    QFETCH(LoopbackSite::Answer, answer);
    m_site->setAnswer(packPath, LoopbackSite::document(laterPack));
    m_site->setAnswer(retiredPath, answer ? answer : m_site->endless(200));

    refresh();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 2 条 · 2026-09-03"_qs);
    QCOMPARE(idsOf(m_model->signals()), (QStringList{u"a"_qs, u"b"_qs}));
    QCOMPARE(idsOf(m_model->retiredSignals()), QStringList{u"gone"_qs});
    QCOMPARE(m_sample->files.files, (QHash<QString, QByteArray>{{packFile, laterPack}}));
}

void RefreshOverNetworkTest::offersANewerBuild()
{
    m_site->setAnswer(versionPath, LoopbackSite::document(SiteDocuments::appVersion(u"1.3.0"_qs)));

    probe();

    QCOMPARE(m_model->availableUpdate()->version, u"1.3.0"_qs);
    verifyNothingChanged();
}

void RefreshOverNetworkTest::staysSilentAboutBuilds_data()
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

void RefreshOverNetworkTest::staysSilentAboutBuilds()
{
    QFETCH(LoopbackSite::Answer, answer);
    m_site->setAnswer(versionPath, answer ? answer : m_site->endless(200));

    probe();

    QVERIFY(!m_model->availableUpdate());
    QVERIFY(!m_model->hasErrorMessage());
    QVERIFY(!m_model->packSyncNote());
    verifyNothingChanged();
}

void RefreshOverNetworkTest::asksForNothingElse()
{
    m_site->setAnswer(packPath, LoopbackSite::document(laterPack));
    m_site->setAnswer(retiredPath, LoopbackSite::document(newRetired));
    m_site->setAnswer(versionPath, LoopbackSite::document(SiteDocuments::appVersion(u"1.2.3"_qs)));

    probe();
    refresh();
    m_model->probeAppUpdateOnce();
    refresh();

    QCOMPARE(m_site->requestLines(),
             (QList<QByteArray>{"GET /information-app-version.json HTTP/1.1",
                                "GET /information-pack.json HTTP/1.1",
                                "GET /retired-signals.json HTTP/1.1",
                                "GET /information-pack.json HTTP/1.1"}));
    QCOMPARE(*m_model->packSyncNote(), u"已是最新（2 条，2026-09-03）"_qs);
}

void RefreshOverNetworkTest::endsQuietlyWhenTheProgramQuits()
{
    m_site->setAnswer(packPath, LoopbackSite::stall("{"));
    m_site->setAnswer(versionPath, LoopbackSite::silence());
    m_model->refreshPackFromSite();
    m_model->probeAppUpdateOnce();
    QTRY_COMPARE_WITH_TIMEOUT(m_site->requests().size(), 2, patience);

    m_model.reset();
    m_client.reset();

    QVERIFY(m_sample->files.files.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(m_site->connectionsOpen(), 0, patience);
}

TEST_SUBJECT(RefreshOverNetworkTest)
#include "RefreshOverNetworkTest.moc"
