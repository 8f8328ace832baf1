// SPDX-License-Identifier: Apache-2.0

#include "NetworkSiteClient.h"
#include "SampleBytes.h"
#include "SiteAnswers.h"
#include "Subject.h"

#include <QTest>

using namespace SiteAnswers;
using namespace std::chrono_literals;

namespace {

// What the sockets of both sides may hold beyond what is read.
constexpr qint64 socketBytes = 32 * 1024 * 1024;

const QByteArray isGzipped = "Content-Encoding: gzip\r\n";

} // namespace

class NetworkSiteClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void waitsAMinuteInSilenceAndFiveInAll()
    {
        const NetworkSiteClient::Limits limits;

        QCOMPARE(limits.silence, 1min);
        QCOMPARE(limits.overall, 5min);
        QCOMPARE(limits.redirects, 5);
    }

    void answersWithBodyAndStatus_data()
    {
        QTest::addColumn<LoopbackSite::Answer>("answer");
        QTest::addColumn<SiteReply>("reply");

        const QByteArray body = SampleBytes::noise(1'400'000);
        QTest::newRow("document") << LoopbackSite::document("{}") << SiteReply{"{}", 200};
        QTest::newRow("empty") << LoopbackSite::document("") << SiteReply{"", 200};
        QTest::newRow("long") << LoopbackSite::document(body) << SiteReply{body, 200};
        QTest::newRow("length not announced")
            << LoopbackSite::unannounced(body) << SiteReply{body, 200};
        QTest::newRow("gzipped") << LoopbackSite::document(SampleBytes::gzipped("{}"), 200,
                                                           isGzipped)
                                 << SiteReply{"{}", 200};
        QTest::newRow("gzipped, long")
            << LoopbackSite::document(SampleBytes::gzipped(body), 200, isGzipped)
            << SiteReply{body, 200};
        QTest::newRow("created") << LoopbackSite::document("{}", 201) << SiteReply{"{}", 201};
        QTest::newRow("not modified") << LoopbackSite::document("", 304) << SiteReply{"", 304};
        QTest::newRow("asks for a password")
            << LoopbackSite::document("no", 401, "WWW-Authenticate: Basic realm=\"x\"\r\n")
            << SiteReply{"no", 401};
        QTest::newRow("not found") << LoopbackSite::document("no", 404) << SiteReply{"no", 404};
        QTest::newRow("server error") << LoopbackSite::document("no", 500) << SiteReply{"no", 500};
        QTest::newRow("unavailable") << LoopbackSite::document("no", 503) << SiteReply{"no", 503};
    }

    void answersWithBodyAndStatus()
    {
        QFETCH(LoopbackSite::Answer, answer);
        QFETCH(SiteReply, reply);
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, answer);

        QCOMPARE(answerOf(site), SiteClient::Answer(reply));
    }

    void refusesWhatIsNoWholeAnswer_data()
    {
        QTest::addColumn<LoopbackSite::Answer>("answer");

        const QByteArray body = SampleBytes::noise(200'000);
        QTest::newRow("half of an announced body") << LoopbackSite::halfOfAnnounced(body);
        QTest::newRow("half of a short body") << LoopbackSite::halfOfAnnounced("{}");
        QTest::newRow("reset") << LoopbackSite::reset();
        QTest::newRow("closed without an answer") << LoopbackSite::raw("");
        QTest::newRow("not HTTP") << LoopbackSite::raw("220 mail.example ESMTP\r\n\r\n");
        QTest::newRow("broken compression")
            << LoopbackSite::document("not gzipped", 200, isGzipped);
        QTest::newRow("twelve million bytes in few") << LoopbackSite::document(
            SampleBytes::gzipped(QByteArray(12'000'000, ' ')), 200, isGzipped);
        QTest::newRow("redirect to nowhere") << LoopbackSite::redirect(u"http://"_qs);
        QTest::newRow("redirect to a file") << LoopbackSite::redirect(u"file:///etc/hostname"_qs);
    }

    void refusesWhatIsNoWholeAnswer()
    {
        QFETCH(LoopbackSite::Answer, answer);
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, answer);

        QCOMPARE(answerOf(site), transportError);
    }

    void takesABodyUpToTheLimit_data()
    {
        QTest::addColumn<LoopbackSite::Answer>("answer");
        QTest::addColumn<bool>("isTaken");

        const QByteArray longest = SampleBytes::noise(byteLimit);
        const QByteArray tooLong = longest + "+";
        QTest::newRow("longest") << LoopbackSite::document(longest) << true;
        QTest::newRow("longest, not announced") << LoopbackSite::unannounced(longest) << true;
        QTest::newRow("longest, gzipped")
            << LoopbackSite::document(SampleBytes::gzipped(longest), 200, isGzipped) << true;
        QTest::newRow("one byte more") << LoopbackSite::document(tooLong) << false;
        QTest::newRow("one byte more, not announced")
            << LoopbackSite::unannounced(tooLong) << false;
        QTest::newRow("one byte more, gzipped")
            << LoopbackSite::document(SampleBytes::gzipped(tooLong), 200, isGzipped) << false;
    }

    void takesABodyUpToTheLimit()
    {
        QFETCH(LoopbackSite::Answer, answer);
        QFETCH(bool, isTaken);
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, answer);

        const auto came = answerOf(site);

        if (isTaken) {
            QCOMPARE(came, SiteClient::Answer(SiteReply{SampleBytes::noise(byteLimit), 200}));
        } else {
            QCOMPARE(came, tooLarge);
        }
    }

    void stopsAnEndlessBody_data()
    {
        QTest::addColumn<QByteArray>("headers");

        QTest::newRow("plain") << QByteArray();
        QTest::newRow("announced long") << QByteArray("Content-Length: 1000000000000\r\n");
    }

    void stopsAnEndlessBody()
    {
        QFETCH(QByteArray, headers);
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, site.endless(200, headers));

        QCOMPARE(answerOf(site), tooLarge);
        QTRY_COMPARE(site.connectionsOpen(), 0);
        QVERIFY(site.endlessBytesSent() > byteLimit);
        QVERIFY(site.endlessBytesSent() < byteLimit + socketBytes);
    }

    void stopsAnEndlessErrorPage()
    {
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, site.endless(500));

        QCOMPARE(answerOf(site), tooLarge);
        QTRY_COMPARE(site.connectionsOpen(), 0);
    }

    void endsASilentRequest_data()
    {
        QTest::addColumn<LoopbackSite::Answer>("answer");

        QTest::newRow("from the start") << LoopbackSite::silence();
        QTest::newRow("after the head") << LoopbackSite::stall("");
        QTest::newRow("after a part of the body") << LoopbackSite::stall("{");
    }

    void endsASilentRequest()
    {
        QFETCH(LoopbackSite::Answer, answer);
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, answer);

        QCOMPARE(answerOf(site, {.silence = 100ms, .overall = 1h}), transportError);
        QTRY_COMPARE(site.connectionsOpen(), 0);
    }

    void endsASlowRequest()
    {
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, LoopbackSite::drip(5ms));

        QCOMPARE(answerOf(site, {.silence = 1h, .overall = 200ms}), transportError);
        QTRY_COMPARE(site.connectionsOpen(), 0);
    }

    void endsItsRequestsWhenDestroyed()
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

    void answersRequestsSideBySide()
    {
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, LoopbackSite::document(SampleBytes::noise(500'000)));
        site.setAnswer(u"/other"_qs, LoopbackSite::document("{}"));
        const auto client = clientOf(site);
        std::optional<SiteClient::Answer> document;
        std::optional<SiteClient::Answer> other;

        keepAnswer(client->get(u"/document"_qs, byteLimit), document);
        keepAnswer(client->get(u"/other"_qs, 2), other);

        QTRY_VERIFY(document && other);
        QCOMPARE(*document, SiteClient::Answer(SiteReply{SampleBytes::noise(500'000), 200}));
        QCOMPARE(*other, okAnswer);
    }
};

TEST_SUBJECT(NetworkSiteClientTest)
#include "NetworkSiteClientTest.moc"
