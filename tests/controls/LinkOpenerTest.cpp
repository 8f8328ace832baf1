// SPDX-License-Identifier: Apache-2.0

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
};

TEST_SUBJECT(LinkOpenerTest)
#include "LinkOpenerTest.moc"
