// SPDX-License-Identifier: Apache-2.0

#include "SiteAnswers.h"
#include "Subject.h"
#include "TestCertificates.h"

#include <QTest>

using namespace SiteAnswers;

/// Where the client lets a site lead it.
class SiteRedirectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_certificates.trust(); }

    void followsFiveRedirects()
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

    void refusesASixthRedirect()
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

    void refusesARedirectLoop()
    {
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, LoopbackSite::redirect(u"/document"_qs));

        QCOMPARE(answerOf(site), transportError);
        QCOMPARE(site.requests().size(), 6);
    }

    // Its pack was shown and stored as the site's own.
    void refusesARedirectToAnotherHost()
    {
        LoopbackSite site;
        site.setAnswer(u"/document"_qs, LoopbackSite::redirect(site.otherOrigin() + u"/moved"_qs));
        site.setAnswer(u"/moved"_qs, LoopbackSite::document("{}"));

        QCOMPARE(answerOf(site), transportError);
        QCOMPARE(site.requestLines(), QList<QByteArray>{"GET /document HTTP/1.1"});
    }

    void followsASecureRedirectOnItsHost()
    {
        LoopbackSite other(m_certificates.trusted());
        other.setAnswer(u"/moved"_qs, LoopbackSite::document("{}"));
        LoopbackSite site(m_certificates.trusted());
        site.setAnswer(u"/document"_qs, LoopbackSite::redirect(other.origin() + u"/moved"_qs));

        QCOMPARE(answerOf(site), okAnswer);
    }

    void refusesASecureRedirectToAPlainSite()
    {
        LoopbackSite plain;
        plain.setAnswer(u"/moved"_qs, LoopbackSite::document("{}"));
        LoopbackSite site(m_certificates.trusted());
        site.setAnswer(u"/document"_qs, LoopbackSite::redirect(plain.origin() + u"/moved"_qs));

        QCOMPARE(answerOf(site), transportError);
        QCOMPARE(site.requests().size(), 1);
        QVERIFY(plain.requests().isEmpty());
    }

private:
    const TestCertificates m_certificates;
};

TEST_SUBJECT(SiteRedirectTest)
#include "SiteRedirectTest.moc"
