// SPDX-License-Identifier: Apache-2.0

#include "SiteRequest.h"
#include "Subject.h"

#include <QTest>

using namespace std::chrono_literals;

class SiteRequestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysTheSameInEveryCopyOfTheProgram()
    {
        const auto request = siteRequest(QUrl(u"https://corvanite.example/pack"_qs), 7s);

        QCOMPARE(request.url(), QUrl(u"https://corvanite.example/pack"_qs));
        QCOMPARE(request.transferTimeout(), 7000);
        QCOMPARE(request.rawHeaderList(), (QList<QByteArray>{"User-Agent", "Accept-Language"}));
        QCOMPARE(request.rawHeader("User-Agent"), QByteArray("CorvaniteInformation"));
        QCOMPARE(request.rawHeader("Accept-Language"), QByteArray("zh-CN"));
    }

    void leavesNothingToTheLibrary_data()
    {
        QTest::addColumn<int>("attribute");
        QTest::addColumn<QVariant>("value");

        QTest::newRow("cookies are not sent") << int(QNetworkRequest::CookieLoadControlAttribute)
                                              << QVariant(QNetworkRequest::Manual);
        QTest::newRow("cookies are not kept") << int(QNetworkRequest::CookieSaveControlAttribute)
                                              << QVariant(QNetworkRequest::Manual);
        QTest::newRow("passwords are not sent")
            << int(QNetworkRequest::AuthenticationReuseAttribute)
            << QVariant(QNetworkRequest::Manual);
        QTest::newRow("HTTP/1.1") << int(QNetworkRequest::Http2AllowedAttribute) << QVariant(false);
        QTest::newRow("redirects are not followed")
            << int(QNetworkRequest::RedirectPolicyAttribute)
            << QVariant(QNetworkRequest::ManualRedirectPolicy);
    }

    void leavesNothingToTheLibrary()
    {
        QFETCH(const int, attribute);
        QFETCH(const QVariant, value);

        const auto request = siteRequest(QUrl(u"https://corvanite.example"_qs), 1s);

        QCOMPARE(request.attribute(QNetworkRequest::Attribute(attribute)).toInt(), value.toInt());
        QVERIFY(request.attribute(QNetworkRequest::Attribute(attribute)).isValid());
    }
};

TEST_SUBJECT(SiteRequestTest)
#include "SiteRequestTest.moc"
