#include "NetworkSiteClient.h"
#include "LoopbackSite.h"
#include "Subject.h"
#include "TestCertificates.h"

#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <memory>
#include <optional>

using namespace std::chrono_literals;

namespace {

constexpr qsizetype byteLimit = 1'500'000;
// What the sockets of both sides may hold beyond what is read.
constexpr qint64 socketBytes = 32 * 1024 * 1024;
// Limits that no request of these tests meets unless it names them.
constexpr NetworkSiteClient::Limits patient{.silence = 1h, .overall = 1h};

const SiteClient::Answer okAnswer = SiteReply{"{}", 200};
const SiteClient::Answer transportError = std::unexpected(SiteError::Transport);
const SiteClient::Answer tooLarge = std::unexpected(SiteError::TooLarge);

std::unique_ptr<NetworkSiteClient> clientOf(const LoopbackSite& site,
                                            NetworkSiteClient::Limits limits = patient)
{
    return std::make_unique<NetworkSiteClient>(ProductSite::fromOrigin(site.origin()).value(),
                                               limits);
}

SiteClient::Answer answerOf(const LoopbackSite& site, NetworkSiteClient::Limits limits = patient)
{
    return QCoro::waitFor(clientOf(site, limits)->get(u"/document"_qs, byteLimit));
}

QCoro::Task<> keepAnswer(QCoro::Task<SiteClient::Answer> request,
                         std::optional<SiteClient::Answer>& kept)
{
    kept = co_await request;
}

// Text that hardly compresses.
QByteArray noise(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char& byte : bytes) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(' ' + (state >> 24) % 95);
    }
    return bytes;
}

quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xedb88320 : 0);
        }
    }
    return ~crc;
}

QByteArray littleEndian(quint32 number)
{
    const quint32 ordered = qToLittleEndian(number);
    return QByteArray(reinterpret_cast<const char*>(&ordered), sizeof ordered);
}

QByteArray gzipped(const QByteArray& bytes)
{
    constexpr qsizetype lengthAndHeader = 4 + 2;
    constexpr qsizetype checksum = 4;
    const QByteArray deflated = qCompress(bytes).sliced(lengthAndHeader).chopped(checksum);
    return QByteArray::fromHex("1f8b08000000000000ff") + deflated + littleEndian(crc32(bytes)) +
           littleEndian(static_cast<quint32>(bytes.size()));
}

const QByteArray isGzipped = "Content-Encoding: gzip\r\n";

} // namespace

namespace QTest {

template <>
char* toString(const SiteClient::Answer& answer)
{
    if (!answer) {
        return qstrdup(answer.error() == SiteError::TooLarge ? "too large" : "transport error");
    }
    return qstrdup(qPrintable(u"status %1, %2 bytes: %3"_qs.arg(answer->status.value_or(0))
                                  .arg(answer->body.size())
                                  .arg(QString::fromLatin1(answer->body.left(100)))));
}

} // namespace QTest

Q_DECLARE_METATYPE(LoopbackSite::Answer)
Q_DECLARE_METATYPE(SiteReply)

class NetworkSiteClientTest : public QObject
{
    Q_OBJECT

private:
    const TestCertificates m_certificates;

private Q_SLOTS:
    void initTestCase();
    void waitsAMinuteInSilenceAndFiveInAll();
    void answersWithBodyAndStatus_data();
    void answersWithBodyAndStatus();
    void refusesWhatIsNoWholeAnswer_data();
    void refusesWhatIsNoWholeAnswer();
    void takesABodyUpToTheLimit_data();
    void takesABodyUpToTheLimit();
    void stopsAnEndlessBody_data();
    void stopsAnEndlessBody();
    void stopsAnEndlessErrorPage();
    void endsASilentRequest_data();
    void endsASilentRequest();
    void endsASlowRequest();
    void followsFiveRedirects();
    void refusesASixthRedirect();
    void refusesARedirectLoop();
    void refusesARedirectToAnotherHost();
    void asksWithoutNamingTheReader();
    void remembersNoCookie();
    void trustsAGoodCertificate();
    void refusesABadCertificate_data();
    void refusesABadCertificate();
    void followsASecureRedirectOnItsHost();
    void refusesASecureRedirectToAPlainSite();
    void endsItsRequestsWhenDestroyed();
    void answersRequestsSideBySide();
};

void NetworkSiteClientTest::initTestCase()
{
    auto tls = QSslConfiguration::defaultConfiguration();
    tls.setCaCertificates({m_certificates.authority()});
    QSslConfiguration::setDefaultConfiguration(tls);
}

void NetworkSiteClientTest::waitsAMinuteInSilenceAndFiveInAll()
{
    const NetworkSiteClient::Limits limits;

    QCOMPARE(limits.silence, 1min);
    QCOMPARE(limits.overall, 5min);
    QCOMPARE(limits.redirects, 5);
}

void NetworkSiteClientTest::answersWithBodyAndStatus_data()
{
    QTest::addColumn<LoopbackSite::Answer>("answer");
    QTest::addColumn<SiteReply>("reply");

    const QByteArray body = noise(1'400'000);
    QTest::newRow("document") << LoopbackSite::document("{}") << SiteReply{"{}", 200};
    QTest::newRow("empty") << LoopbackSite::document("") << SiteReply{"", 200};
    QTest::newRow("long") << LoopbackSite::document(body) << SiteReply{body, 200};
    QTest::newRow("length not announced")
        << LoopbackSite::unannounced(body) << SiteReply{body, 200};
    QTest::newRow("gzipped") << LoopbackSite::document(gzipped("{}"), 200, isGzipped)
                             << SiteReply{"{}", 200};
    QTest::newRow("gzipped, long")
        << LoopbackSite::document(gzipped(body), 200, isGzipped) << SiteReply{body, 200};
    QTest::newRow("created") << LoopbackSite::document("{}", 201) << SiteReply{"{}", 201};
    QTest::newRow("not modified") << LoopbackSite::document("", 304) << SiteReply{"", 304};
    QTest::newRow("asks for a password")
        << LoopbackSite::document("no", 401, "WWW-Authenticate: Basic realm=\"x\"\r\n")
        << SiteReply{"no", 401};
    QTest::newRow("not found") << LoopbackSite::document("no", 404) << SiteReply{"no", 404};
    QTest::newRow("server error") << LoopbackSite::document("no", 500) << SiteReply{"no", 500};
    QTest::newRow("unavailable") << LoopbackSite::document("no", 503) << SiteReply{"no", 503};
}

void NetworkSiteClientTest::answersWithBodyAndStatus()
{
    QFETCH(LoopbackSite::Answer, answer);
    QFETCH(SiteReply, reply);
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, answer);

    QCOMPARE(answerOf(site), SiteClient::Answer(reply));
}

void NetworkSiteClientTest::refusesWhatIsNoWholeAnswer_data()
{
    QTest::addColumn<LoopbackSite::Answer>("answer");

    const QByteArray body = noise(200'000);
    QTest::newRow("half of an announced body") << LoopbackSite::halfOfAnnounced(body);
    QTest::newRow("half of a short body") << LoopbackSite::halfOfAnnounced("{}");
    QTest::newRow("reset") << LoopbackSite::reset();
    QTest::newRow("closed without an answer") << LoopbackSite::raw("");
    QTest::newRow("not HTTP") << LoopbackSite::raw("220 mail.example ESMTP\r\n\r\n");
    QTest::newRow("broken compression") << LoopbackSite::document("not gzipped", 200, isGzipped);
    QTest::newRow("twelve million bytes in few")
        << LoopbackSite::document(gzipped(QByteArray(12'000'000, ' ')), 200, isGzipped);
    QTest::newRow("redirect to nowhere") << LoopbackSite::redirect(u"http://"_qs);
    QTest::newRow("redirect to a file") << LoopbackSite::redirect(u"file:///etc/hostname"_qs);
}

void NetworkSiteClientTest::refusesWhatIsNoWholeAnswer()
{
    QFETCH(LoopbackSite::Answer, answer);
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, answer);

    QCOMPARE(answerOf(site), transportError);
}

void NetworkSiteClientTest::takesABodyUpToTheLimit_data()
{
    QTest::addColumn<LoopbackSite::Answer>("answer");
    QTest::addColumn<bool>("isTaken");

    const QByteArray longest = noise(byteLimit);
    const QByteArray tooLong = longest + "+";
    QTest::newRow("longest") << LoopbackSite::document(longest) << true;
    QTest::newRow("longest, not announced") << LoopbackSite::unannounced(longest) << true;
    QTest::newRow("longest, gzipped")
        << LoopbackSite::document(gzipped(longest), 200, isGzipped) << true;
    QTest::newRow("one byte more") << LoopbackSite::document(tooLong) << false;
    QTest::newRow("one byte more, not announced") << LoopbackSite::unannounced(tooLong) << false;
    QTest::newRow("one byte more, gzipped")
        << LoopbackSite::document(gzipped(tooLong), 200, isGzipped) << false;
}

void NetworkSiteClientTest::takesABodyUpToTheLimit()
{
    QFETCH(LoopbackSite::Answer, answer);
    QFETCH(bool, isTaken);
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, answer);

    const auto came = answerOf(site);

    if (isTaken) {
        QCOMPARE(came, SiteClient::Answer(SiteReply{noise(byteLimit), 200}));
    } else {
        QCOMPARE(came, tooLarge);
    }
}

void NetworkSiteClientTest::stopsAnEndlessBody_data()
{
    QTest::addColumn<QByteArray>("headers");

    QTest::newRow("plain") << QByteArray();
    QTest::newRow("announced long") << QByteArray("Content-Length: 1000000000000\r\n");
}

void NetworkSiteClientTest::stopsAnEndlessBody()
{
    QFETCH(QByteArray, headers);
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, site.endless(200, headers));

    QCOMPARE(answerOf(site), tooLarge);
    QTRY_COMPARE(site.connectionsOpen(), 0);
    QVERIFY(site.endlessBytesSent() > byteLimit);
    QVERIFY(site.endlessBytesSent() < byteLimit + socketBytes);
}

void NetworkSiteClientTest::stopsAnEndlessErrorPage()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, site.endless(500));

    QCOMPARE(answerOf(site), tooLarge);
    QTRY_COMPARE(site.connectionsOpen(), 0);
}

void NetworkSiteClientTest::endsASilentRequest_data()
{
    QTest::addColumn<LoopbackSite::Answer>("answer");

    QTest::newRow("from the start") << LoopbackSite::silence();
    QTest::newRow("after the head") << LoopbackSite::stall("");
    QTest::newRow("after a part of the body") << LoopbackSite::stall("{");
}

void NetworkSiteClientTest::endsASilentRequest()
{
    QFETCH(LoopbackSite::Answer, answer);
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, answer);

    QCOMPARE(answerOf(site, {.silence = 100ms, .overall = 1h}), transportError);
    QTRY_COMPARE(site.connectionsOpen(), 0);
}

void NetworkSiteClientTest::endsASlowRequest()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, LoopbackSite::drip(5ms));

    QCOMPARE(answerOf(site, {.silence = 1h, .overall = 200ms}), transportError);
    QTRY_COMPARE(site.connectionsOpen(), 0);
}

void NetworkSiteClientTest::followsFiveRedirects()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, LoopbackSite::redirect(u"/1"_qs, 301));
    site.setAnswer(u"/1"_qs, LoopbackSite::redirect(u"/2"_qs, 302));
    site.setAnswer(u"/2"_qs, LoopbackSite::redirect(u"/3"_qs, 303));
    site.setAnswer(u"/3"_qs, LoopbackSite::redirect(u"/4"_qs, 307));
    site.setAnswer(u"/4"_qs, LoopbackSite::redirect(u"/5"_qs, 308));
    site.setAnswer(u"/5"_qs, LoopbackSite::document("{}"));

    QCOMPARE(answerOf(site), okAnswer);
    QCOMPARE(site.requests().size(), 6);
}

void NetworkSiteClientTest::refusesASixthRedirect()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, LoopbackSite::redirect(u"/1"_qs));
    for (int i = 1; i < 6; ++i) {
        site.setAnswer(u"/%1"_qs.arg(i), LoopbackSite::redirect(u"/%1"_qs.arg(i + 1)));
    }
    site.setAnswer(u"/6"_qs, LoopbackSite::document("{}"));

    QCOMPARE(answerOf(site), transportError);
    QCOMPARE(site.requests().size(), 6);
}

void NetworkSiteClientTest::refusesARedirectLoop()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, LoopbackSite::redirect(u"/document"_qs));

    QCOMPARE(answerOf(site), transportError);
    QCOMPARE(site.requests().size(), 6);
}

// Its pack was shown and stored as the site's own.
void NetworkSiteClientTest::refusesARedirectToAnotherHost()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, LoopbackSite::redirect(site.otherOrigin() + u"/moved"_qs));
    site.setAnswer(u"/moved"_qs, LoopbackSite::document("{}"));

    QCOMPARE(answerOf(site), transportError);
    QCOMPARE(site.requestLines(), QList<QByteArray>{"GET /document HTTP/1.1"});
}

void NetworkSiteClientTest::asksWithoutNamingTheReader()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, LoopbackSite::redirect(u"/moved"_qs));
    site.setAnswer(u"/moved"_qs, LoopbackSite::document("{}"));

    QCOMPARE(answerOf(site), okAnswer);

    const QByteArray host = "Host: " + site.origin().section(u'/', -1).toLatin1();
    for (QList<QByteArray> head : site.requests()) {
        QVERIFY(!head.takeFirst().contains('?'));
        QCOMPARE(head.removeIf(
                     [](const QByteArray& line) { return line.startsWith("Accept-Encoding: "); }),
                 1);
        std::ranges::sort(head);
        QCOMPARE(head, (QList<QByteArray>{"Accept-Language: zh-CN", "Connection: Keep-Alive", host,
                                          "User-Agent: CorvaniteInformation"}));
    }
    QCOMPARE(site.requests().size(), 2);
}

void NetworkSiteClientTest::remembersNoCookie()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs,
                   LoopbackSite::document("{}", 200, "Set-Cookie: reader=1; Path=/\r\n"));
    const auto client = clientOf(site);

    QCOMPARE(QCoro::waitFor(client->get(u"/document"_qs, byteLimit)), okAnswer);
    QCOMPARE(QCoro::waitFor(client->get(u"/document"_qs, byteLimit)), okAnswer);

    QCOMPARE(site.requests().size(), 2);
    QCOMPARE(site.requests().first(), site.requests().last());
}

void NetworkSiteClientTest::trustsAGoodCertificate()
{
    LoopbackSite site(m_certificates.trusted());
    site.setAnswer(u"/document"_qs, LoopbackSite::document("{}"));

    QCOMPARE(answerOf(site), okAnswer);
}

void NetworkSiteClientTest::refusesABadCertificate_data()
{
    QTest::addColumn<QSslConfiguration>("tls");

    QTest::newRow("another host's") << m_certificates.forAnotherHost();
    QTest::newRow("expired") << m_certificates.expired();
    QTest::newRow("self-signed") << m_certificates.selfSigned();
}

void NetworkSiteClientTest::refusesABadCertificate()
{
    QFETCH(QSslConfiguration, tls);
    LoopbackSite site(tls);
    site.setAnswer(u"/document"_qs, LoopbackSite::document("{}"));

    QCOMPARE(answerOf(site), transportError);
    QVERIFY(site.requests().isEmpty());
}

void NetworkSiteClientTest::followsASecureRedirectOnItsHost()
{
    LoopbackSite other(m_certificates.trusted());
    other.setAnswer(u"/moved"_qs, LoopbackSite::document("{}"));
    LoopbackSite site(m_certificates.trusted());
    site.setAnswer(u"/document"_qs, LoopbackSite::redirect(other.origin() + u"/moved"_qs));

    QCOMPARE(answerOf(site), okAnswer);
}

void NetworkSiteClientTest::refusesASecureRedirectToAPlainSite()
{
    LoopbackSite plain;
    plain.setAnswer(u"/moved"_qs, LoopbackSite::document("{}"));
    LoopbackSite site(m_certificates.trusted());
    site.setAnswer(u"/document"_qs, LoopbackSite::redirect(plain.origin() + u"/moved"_qs));

    QCOMPARE(answerOf(site), transportError);
    QCOMPARE(site.requests().size(), 1);
    QVERIFY(plain.requests().isEmpty());
}

void NetworkSiteClientTest::endsItsRequestsWhenDestroyed()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, LoopbackSite::stall("{"));
    auto client = clientOf(site);
    std::optional<SiteClient::Answer> first;
    std::optional<SiteClient::Answer> second;
    keepAnswer(client->get(u"/document"_qs, byteLimit), first);
    keepAnswer(client->get(u"/document"_qs, byteLimit), second);
    QTRY_COMPARE(site.requests().size(), 2);
    QVERIFY(!first && !second);

    client.reset();

    QVERIFY(first && second);
    QCOMPARE(*first, transportError);
    QCOMPARE(*second, transportError);
    QTRY_COMPARE(site.connectionsOpen(), 0);
}

void NetworkSiteClientTest::answersRequestsSideBySide()
{
    LoopbackSite site;
    site.setAnswer(u"/document"_qs, LoopbackSite::document(noise(500'000)));
    site.setAnswer(u"/other"_qs, LoopbackSite::document("{}"));
    const auto client = clientOf(site);
    std::optional<SiteClient::Answer> document;
    std::optional<SiteClient::Answer> other;

    keepAnswer(client->get(u"/document"_qs, byteLimit), document);
    keepAnswer(client->get(u"/other"_qs, 2), other);

    QTRY_VERIFY(document && other);
    QCOMPARE(*document, SiteClient::Answer(SiteReply{noise(500'000), 200}));
    QCOMPARE(*other, okAnswer);
}

TEST_SUBJECT(NetworkSiteClientTest)
#include "NetworkSiteClientTest.moc"
