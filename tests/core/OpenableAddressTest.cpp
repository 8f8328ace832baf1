// SPDX-License-Identifier: Apache-2.0

#include "OpenableAddress.h"
#include "Subject.h"

#include <QTest>

class OpenableAddressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opened_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("opened");

        const auto row = [](const QString& text, const QByteArray& opened) {
            QTest::newRow(qPrintable(text)) << text << opened;
        };
        row(u"https://h.example/a?b=c#d"_qs, "https://h.example/a?b=c#d");
        row(u"http://h.example"_qs, "http://h.example");
        row(u"HTTPS://H.Example/A"_qs, "https://h.example/A");
        row(u"https://h.example:8443/"_qs, "https://h.example:8443/");
        row(u"https://h.example/中文 x"_qs, "https://h.example/%E4%B8%AD%E6%96%87%20x");
        row(u"https://例子.测试/"_qs, "https://xn--fsqu00a.xn--0zwm56d/");
        row(u"https://[2606:4700::1111]/"_qs, "https://[2606:4700::1111]/");
        row(u"https://[fe80::1%25eth0]/"_qs, "https://[fe80::1%25eth0]/");
        row(u"https://h.example/@user"_qs, "https://h.example/@user");
        row(u"https://h.example/?a@b#c@d"_qs, "https://h.example/?a@b#c@d");
        row(u"http://127.0.0.1:8080/"_qs, "http://127.0.0.1:8080/");
        row(u"https://h.example/👩‍👧"_qs,
            "https://h.example/%F0%9F%91%A9%E2%80%8D%F0%9F%91%A7");
        row(u"https://h.example/\u061B\u061D\u200D\u2029\u202F\u2065\u206A"_qs,
            "https://h.example/%D8%9B%D8%9D%E2%80%8D%E2%80%A9%E2%80%AF%E2%81%A5%E2%81%AA");
    }

    void opened()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, opened);

        const auto url = OpenableAddress::url(text);
        QVERIFY(url.has_value());
        QCOMPARE(url->toEncoded(), opened);
        QCOMPARE(OpenableAddress::from(text), text);
    }

    void refused_data()
    {
        QTest::addColumn<QString>("text");

        int number = 0;
        for (const QString& text : {
                 u""_qs,
                 u"h.example"_qs,
                 u"//h.example/"_qs,
                 u"www.h.example"_qs,
                 u"ftp://h.example/"_qs,
                 u"file:///etc/passwd"_qs,
                 u"javascript:alert(1)"_qs,
                 u"data:text/html,x"_qs,
                 u"mailto:a@h.example"_qs,
                 u"https:h.example"_qs,
                 u"https:/h.example"_qs,
                 u"https:///h.example"_qs,
                 u"https://"_qs,
                 u"https://:443/"_qs,
                 u"https://?q"_qs,
                 u"https://user@h.example/"_qs,
                 u"https://user:pw@h.example/"_qs,
                 u"https://@h.example/"_qs,
                 u"https://h.example@evil.example/"_qs,
                 u"https://h.example\\@evil.example/"_qs,
                 u"https://a@b@h.example/"_qs,
                 u"https://h.example:x/"_qs,
                 u"https://[2606:4700::11%25例]/"_qs,
                 u"https://[v1.x]/"_qs,
                 u"https://h.example:99999/"_qs,
                 u"https://[::1/"_qs,
                 u"https://[g::1]/"_qs,
                 u"https://h|i.example/"_qs,
                 u"https://h example/"_qs,
                 u" https://h.example/"_qs,
                 u"https://h.example/\n"_qs,
                 u"https://h.example/\tx"_qs,
                 u"https://h.example/\u0000"_qs,
                 u"https://h.example/\u007F"_qs,
                 u"https://h.example/\u0085"_qs,
                 u"https://h.example/\u202Egpj.exe"_qs,
                 u"https://h.example/\u202D"_qs,
                 u"https://h.example/\u2066x\u2069"_qs,
                 u"https://h.example/?\u200F"_qs,
                 u"https://h.example/#\u061C"_qs,
                 u"\u202Ehttps://h.example/"_qs,
             }) {
            QTest::addRow("%d %s", ++number, qPrintable(text)) << text;
        }
        for (const QChar turning : u"\u061C\u200E\u200F\u202A\u202B\u202C\u202D\u202E"
                                   "\u2066\u2067\u2068\u2069"_qs) {
            QTest::addRow("U+%04X alone", turning.unicode()) << u"https://h.example/"_qs + turning;
        }
    }

    void refused()
    {
        QFETCH(QString, text);

        QVERIFY(!OpenableAddress::url(text));
        QCOMPARE(OpenableAddress::from(text), QString());
    }
};

TEST_SUBJECT(OpenableAddressTest)
#include "OpenableAddressTest.moc"
