#include "LinkOpener.h"
#include "Browser.h"
#include "Subject.h"

#include <QTest>

class LinkOpenerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void open_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("opens");

        QTest::newRow("https") << u"https://example.com/a?b=c#d"_qs << true;
        QTest::newRow("http") << u"http://example.com/"_qs << true;
        QTest::newRow("a file") << u"file:///etc/passwd"_qs << false;
        QTest::newRow("mail") << u"mailto:a@example.com"_qs << false;
        QTest::newRow("user information") << u"https://a@example.com/"_qs << false;
        QTest::newRow("no host") << u"https:///path"_qs << false;
        QTest::newRow("nothing") << QString() << false;
    }

    void open()
    {
        QFETCH(const QString, address);
        QFETCH(const bool, opens);
        const Browser browser({u"file"_qs, u"mailto"_qs});
        LinkOpener::open(address);
        QCOMPARE(browser.opened, opens ? QList{QUrl(address)} : QList<QUrl>());
    }

    void sitePage_data()
    {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("address");

        QTest::newRow("neither has a slash") << u"https://corvanite.example"_qs << u"method"_qs
                                             << u"https://corvanite.example/method"_qs;
        QTest::newRow("the base has one") << u"https://corvanite.example/"_qs << u"method"_qs
                                          << u"https://corvanite.example/method"_qs;
        QTest::newRow("no site") << u"ftp://corvanite.example"_qs << u"method"_qs << QString();
        QTest::newRow("both have one") << u"https://corvanite.example/"_qs << u"/feed.xml"_qs
                                       << u"https://corvanite.example/feed.xml"_qs;
        QTest::newRow("a base below the root") << u"http://127.0.0.1:8080/site"_qs << u"status"_qs
                                               << u"http://127.0.0.1:8080/site/status"_qs;
    }

    void sitePage()
    {
        QFETCH(const QString, origin);
        QFETCH(const QString, path);
        QTEST(LinkOpener::sitePage(origin, path), "address");
    }
};

TEST_SUBJECT(LinkOpenerTest)
#include "LinkOpenerTest.moc"
