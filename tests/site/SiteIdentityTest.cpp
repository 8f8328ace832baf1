// SPDX-License-Identifier: Apache-2.0

#include "SiteAnswers.h"
#include "Subject.h"
#include "TestCertificates.h"

#include <QTest>

#include <algorithm>

using namespace SiteAnswers;

/// The site has to prove who it is, and does not learn who the reader is.
class SiteIdentityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_certificates.trust(); }

    void asksWithoutNamingTheReader()
    {
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, LoopbackSite::redirect(u"/moved"_qs));
        site.setAnswer(u"/moved"_qs, LoopbackSite::document("{}"));

        QCOMPARE(answerOf(site), okAnswer);

        const QByteArray host = "Host: " + site.origin().section(u'/', -1).toLatin1();
        for (QList<QByteArray> head : site.requests()) {
            QVERIFY(!head.takeFirst().contains('?'));
            QCOMPARE(head.removeIf([](const QByteArray& line) {
                return line.startsWith("Accept-Encoding: ");
            }),
                     1);
            std::ranges::sort(head);
            QCOMPARE(head, (QList<QByteArray>{"Accept-Language: zh-CN", "Connection: Keep-Alive",
                                              host, "User-Agent: CorvaniteInformation"}));
        }
        QCOMPARE(site.requests().size(), 2);
    }

    void remembersNoCookie()
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

    void trustsAGoodCertificate()
    {
        LoopbackSite site(m_certificates.trusted());
        site.setAnswer(u"/document"_qs, LoopbackSite::document("{}"));

        QCOMPARE(answerOf(site), okAnswer);
    }

    void refusesABadCertificate_data()
    {
        QTest::addColumn<QSslConfiguration>("tls");

        QTest::newRow("another host's") << m_certificates.forAnotherHost();
        QTest::newRow("expired") << m_certificates.expired();
        QTest::newRow("self-signed") << m_certificates.selfSigned();
    }

    void refusesABadCertificate()
    {
        QFETCH(QSslConfiguration, tls);
        LoopbackSite site(tls);
        site.setAnswer(u"/document"_qs, LoopbackSite::document("{}"));

        QCOMPARE(answerOf(site), transportError);
        QVERIFY(site.requests().isEmpty());
    }

private:
    const TestCertificates m_certificates;
};

TEST_SUBJECT(SiteIdentityTest)
#include "SiteIdentityTest.moc"
