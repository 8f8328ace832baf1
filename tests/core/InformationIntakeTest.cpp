// SPDX-License-Identifier: Apache-2.0

#include "InformationIntake.h"

#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

namespace {

CustomInformationSource sourceWith(const QString& input)
{
    return {QUuid(), input, {}};
}

} // namespace

class InformationIntakeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addresses_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("value");

        const auto row = [](const QString& input, const QString& value) {
            QTest::newRow(qPrintable(input)) << input << value;
        };
        const auto unchanged = [&row](const QString& input) { row(input, input); };

        row(u"www.Example.com/a/?utm_source=x&b=2&a=1#top"_qs,
            u"https://www.example.com/a?a=1&b=2"_qs);
        row(u"https://EXAMPLE.com.:443/"_qs, u"https://example.com/"_qs);
        row(u"\u3000https://example.com\r\n"_qs, u"https://example.com"_qs);

        // Scheme.
        row(u"HTTPS://example.com/A"_qs, u"https://example.com/A"_qs);
        row(u"WWW.EXAMPLE.COM"_qs, u"https://www.example.com"_qs);
        row(u"www.a"_qs, u"https://www.a"_qs);
        row(u"www.example.com#x"_qs, u"https://www.example.com"_qs);
        row(u"www.:443"_qs, u"https://www"_qs);

        // Host.
        row(u"https://example.com..."_qs, u"https://example.com"_qs);
        unchanged(u"https://my_host.example/"_qs);
        unchanged(u"https://-a.example"_qs);
        unchanged(u"https://a..b.example"_qs);
        unchanged(u"https://a,b;c=d$e*f'(g)!h&i+j~k/"_qs);
        unchanged(u"https://intranet/"_qs);
        unchanged(u"https://local/"_qs);
        unchanged(u"https://localhost.com"_qs);
        row(u"https://例子.测试/"_qs, u"https://xn--fsqu00a.xn--0zwm56d/"_qs);
        row(u"https://例子.测试。"_qs, u"https://xn--fsqu00a.xn--0zwm56d"_qs);
        row(u"https://EXÄMPLE.com/"_qs, u"https://xn--exmple-cua.com/"_qs);
        row(u"https://XN--FSQU00A.example"_qs, u"https://xn--fsqu00a.example"_qs);
        row(u"https://example。com/"_qs, u"https://example.com/"_qs);
        row(u"https://ｅｘａｍｐｌｅ.com"_qs, u"https://example.com"_qs);
        row(u"https://example.com\u200B"_qs, u"https://example.com"_qs);
        row(u"https://ex%61mple%2Ecom/"_qs, u"https://example.com/"_qs);
        row(u"https://%E4%BE%8B%E5%AD%90.example/"_qs, u"https://xn--fsqu00a.example/"_qs);
        // As an address literal, though a resolver may read another one.
        unchanged(u"https://8.8.8.8/"_qs);
        unchanged(u"https://08.8.8.8/"_qs);
        unchanged(u"https://8.8/"_qs);
        row(u"https://0X08080808/"_qs, u"https://0x08080808/"_qs);
        unchanged(u"https://1.256.1.1/"_qs);
        row(u"https://[2606:4700::ABCD]"_qs, u"https://[2606:4700::abcd]"_qs);
        unchanged(u"https://[2606:4700:0::1111%25eth0]:8443/"_qs);

        // Port.
        unchanged(u"https://example.com:8443/"_qs);
        unchanged(u"https://example.com:80"_qs);
        unchanged(u"https://example.com:99999/"_qs);
        unchanged(u"https://example.com:99999999999999999999/"_qs);
        row(u"https://example.com:/"_qs, u"https://example.com/"_qs);
        row(u"https://example.com:0443/"_qs, u"https://example.com/"_qs);
        unchanged(u"https://example.com:4430"_qs);

        // Path.
        unchanged(u"https://example.com"_qs);
        unchanged(u"https://example.com/"_qs);
        row(u"https://example.com//"_qs, u"https://example.com/"_qs);
        row(u"https://example.com/a/b///"_qs, u"https://example.com/a/b"_qs);
        row(u"https://example.com//a//b/"_qs, u"https://example.com//a//b"_qs);
        unchanged(u"https://example.com/a/./../b/."_qs);
        unchanged(u"https://example.com/%2f"_qs);
        row(u"https://example.com/%2F/"_qs, u"https://example.com/%2F"_qs);
        unchanged(u"https://example.com/@user/!$&'()*+,;=:~-._"_qs);
        row(u"https://example.com/中文"_qs, u"https://example.com/%E4%B8%AD%E6%96%87"_qs);
        row(u"https://example.com/a|b\\c^d`e\"f<g>h{i}j[k]"_qs,
            u"https://example.com/a%7Cb%5Cc%5Ed%60e%22f%3Cg%3Eh%7Bi%7Dj%5Bk%5D"_qs);
        row(u"https://example.com/100%"_qs, u"https://example.com/100%25"_qs);
        row(u"https://example.com/%4/%zz/%41%4中"_qs,
            u"https://example.com/%254/%25zz/%41%254%E4%B8%AD"_qs);
        unchanged(u"https://example.com/%2541"_qs);
        row(u"https://example.com/\u0000"_qs, u"https://example.com/%00"_qs);
        row(u"https://example.com/\u202Egpj.exe"_qs, u"https://example.com/%E2%80%AEgpj.exe"_qs);

        // Query.
        row(u"https://example.com?"_qs, u"https://example.com"_qs);
        row(u"https://example.com/?b&a"_qs, u"https://example.com/?a&b"_qs);
        row(u"https://example.com/?a=2&b=1&a=1&b=0"_qs, u"https://example.com/?a=1&a=2&b=0&b=1"_qs);
        row(u"https://example.com?a=1&a"_qs, u"https://example.com?a&a=1"_qs);
        unchanged(u"https://example.com?a&a="_qs);
        unchanged(u"https://example.com?a=&a"_qs);
        row(u"https://example.com/?a=b&A=b"_qs, u"https://example.com/?A=b&a=b"_qs);
        row(u"https://example.com/?10=1&9=1&1=1"_qs, u"https://example.com/?1=1&10=1&9=1"_qs);
        row(u"https://example.com/?b&%61"_qs, u"https://example.com/?%61&b"_qs);
        row(u"https://example.com/?\U0001F600&\uE000"_qs,
            u"https://example.com/?%EE%80%80&%F0%9F%98%80"_qs);
        row(u"https://example.com/?中=1&a=2"_qs, u"https://example.com/?a=2&%E4%B8%AD=1"_qs);
        unchanged(u"https://example.com/?=x"_qs);
        row(u"https://example.com/?1=1&=b&=a"_qs, u"https://example.com/?=a&=b&1=1"_qs);
        unchanged(u"https://example.com/??a=/b?c:@=!$'()*+,;~-._"_qs);
        unchanged(u"https://example.com/?a=1%262&a%3Db=x%20y"_qs);
        row(u"https://example.com/?a[]=[1]"_qs, u"https://example.com/?a%5B%5D=%5B1%5D"_qs);
        row(u"https://example.com/?a=1&&b=2&"_qs, u"https://example.com/?a=1&b=2"_qs);
        row(u"https://example.com/?&&"_qs, u"https://example.com/"_qs);
        row(u"https://example.com/dir/?&utm_source=1"_qs, u"https://example.com/dir"_qs);

        // Fragment.
        row(u"https://example.com#"_qs, u"https://example.com"_qs);
        row(u"https://example.com/p/#a/b/?c#中"_qs, u"https://example.com/p"_qs);
    }

    void addresses()
    {
        QFETCH(QString, input);
        QFETCH(QString, value);

        const auto intake = InformationIntake::normalize(input);
        QVERIFY(intake.has_value());
        QCOMPARE(intake->value, value);
        QCOMPARE(intake->kind, NormalizedInformationIntake::Kind::Url);
        QCOMPARE(intake->identity, u"url:"_qs + value);
        QVERIFY(InformationIntake::normalize(value) == intake);
    }

    void trackingNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isTracking");

        for (const char* name :
             {"utm_source", "UTM_Medium", "utm_", "utm_%61", "%75tm_a", "utm%5Fsource", "dclid",
              "fbclid", "gclid", "GCLID", "mc_cid", "mc_eid", "MC_EID", "msclkid"}) {
            QTest::newRow(name) << QString::fromLatin1(name) << true;
        }
        for (const char* name : {"utm", "utmx", "xutm_a", "_utm_a", "gclid2", "xgclid", "gclsrc",
                                 "mc_id", "mccid", "ref", "yclid", "wbraid"}) {
            QTest::newRow(name) << QString::fromLatin1(name) << false;
        }
    }

    void trackingNames()
    {
        QFETCH(QString, name);
        QFETCH(bool, isTracking);

        for (const QString& item : {name, name + u'=', name + u"=1"_qs}) {
            const auto intake = InformationIntake::normalize(u"https://example.com/p?"_qs + item);
            QVERIFY(intake.has_value());
            QCOMPARE(intake->value, isTracking ? u"https://example.com/p"_qs
                                               : u"https://example.com/p?"_qs + item);
        }
    }

    void texts_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("identity");

        const auto row = [](const QString& input, const QString& value, const QString& identity) {
            QTest::newRow(qPrintable(input)) << input << value << identity;
        };
        row(u"Hello   World\nagain"_qs, u"Hello World again"_qs, u"text:hello world again"_qs);
        row(u"\u3000中文\u2003句子\u0085"_qs, u"中文 句子"_qs, u"text:中文 句子"_qs);
        row(u"ÄPFEL"_qs, u"ÄPFEL"_qs, u"text:äpfel"_qs);
        row(u"想持续更新 AI 的消息"_qs, u"想持续更新 AI 的消息"_qs,
            u"text:想持续更新 ai 的消息"_qs);
        // Zero-width space is no white space.
        row(u"a\u200Bb"_qs, u"a\u200Bb"_qs, u"text:a\u200Bb"_qs);
        // An address among words is a word.
        row(u"https://example.com /"_qs, u"https://example.com /"_qs,
            u"text:https://example.com /"_qs);
        row(u"www.example.com x"_qs, u"www.example.com x"_qs, u"text:www.example.com x"_qs);
        row(u"HTTP://A.example\nb"_qs, u"HTTP://A.example b"_qs, u"text:http://a.example b"_qs);

        // One word without a scheme, or an address that does not parse.
        for (const QString& word : {
                 u"https"_qs,
                 u"localhost"_qs,
                 u"example.com/a"_qs,
                 u"//example.com/a"_qs,
                 u"/absolute/path"_qs,
                 u"../x"_qs,
                 u"3:1"_qs,
                 u"10.0.0.1:80"_qs,
                 u"提醒:买牛奶"_qs,
                 u"?q=1:2"_qs,
                 u"#a:b"_qs,
                 u"www"_qs,
                 u"www。example。com"_qs,
                 u"ｗｗｗ.example.com"_qs,
                 u"https://a@b@example.com"_qs,
                 u"https://example.com:44x/"_qs,
                 u"https://example.com:-443/"_qs,
                 u"https://example.com:443:443"_qs,
                 u"https://example.com:４４３/"_qs,
                 u"https://a|b/"_qs,
                 u"https://a\"b"_qs,
                 u"https://a\\b"_qs,
                 u"https://a^b`c"_qs,
                 u"https://a%20b/"_qs,
                 u"https://example%2fcom/"_qs,
                 u"https://a%40b/"_qs,
                 u"https://%ff.example/"_qs,
                 u"https://%2565xample.com/"_qs,
                 u"https://a%00b/"_qs,
                 u"https://℀.example/"_qs,
                 u"https://\u202E例子.example/"_qs,
                 u"https://xn--localhost-/"_qs,
                 u"https://[127.0.0.1]"_qs,
                 u"https://[g::1]/"_qs,
                 u"https://[::ffff:1.2.3]"_qs,
                 u"https://[2606:4700::1111]x/"_qs,
                 u"https://[[::1]]/"_qs,
                 u"https://::1]"_qs,
             }) {
            row(word, word, u"text:"_qs + word.toLower());
        }
    }

    void texts()
    {
        QFETCH(QString, input);
        QFETCH(QString, value);
        QFETCH(QString, identity);

        const auto intake = InformationIntake::normalize(input);
        QVERIFY(intake.has_value());
        QCOMPARE(intake->value, value);
        QCOMPARE(intake->kind, NormalizedInformationIntake::Kind::Text);
        QCOMPARE(intake->identity, identity);
        QVERIFY(InformationIntake::normalize(value) == intake);
    }

    void refused_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<InformationIntakeFailure>("failure");

        for (const QString& blank : {u""_qs, u"   "_qs, u"\t\r\n"_qs, u"\u3000\u2028"_qs}) {
            QTest::addRow("empty %d", int(blank.size()))
                << blank << InformationIntakeFailure::Empty;
        }
        for (const QString& input : {
                 u"http://example.com"_qs,
                 u"HTTP://EXAMPLE.COM"_qs,
                 u"ftp://example.com"_qs,
                 u"ftp://例子.测试"_qs,
                 u"foo:bar"_qs,
                 u"todo:milk"_qs,
                 u"todo:牛奶"_qs,
                 u"localhost:3000"_qs,
                 u"javascript:alert(1)"_qs,
                 u"file:///etc/passwd"_qs,
                 u"feed:https://example.com"_qs,
                 u"https2://example.com"_qs,
                 // No host.
                 u"https:"_qs,
                 u"https://"_qs,
                 u"https:example.com"_qs,
                 u"https:/example.com"_qs,
                 u"https:///example.com"_qs,
                 u"https://./"_qs,
                 u"https://:8443/"_qs,
                 u"https://?q"_qs,
                 // User information.
                 u"https://user@example.com/x"_qs,
                 u"https://user:pw@example.com"_qs,
                 u"https://:pw@example.com"_qs,
                 u"https://@example.com"_qs,
                 u"https://a%40b@example.com"_qs,
                 u"https://example.com@evil.example/"_qs,
                 u"https://example.com\\@evil.example/"_qs,
                 u"www.user@example.com"_qs,
                 u"www.@"_qs,
                 // Hosts that are local in any spelling.
                 u"https://localhost"_qs,
                 u"https://LocalHost..:8443/x"_qs,
                 u"www.localhost"_qs,
                 u"https://printer.local"_qs,
                 u"https://192.168.1.2"_qs,
                 u"https://127.0.0.1./"_qs,
                 u"https://0X7F.1/"_qs,
                 u"https://0177.0.0.1/"_qs,
                 u"https://010.8.8.8/"_qs,
                 u"https://[::1]:443/"_qs,
                 u"https://[::1%25lo]"_qs,
                 u"https://[FE80::1]"_qs,
                 u"https://[::FFFF:10.0.0.1]/"_qs,
                 u"https://%6Cocalhost/"_qs,
                 u"https://localhost%2E/"_qs,
                 u"https://%31%32%37.0.0.1/"_qs,
                 u"https://ｌｏｃａｌｈｏｓｔ/"_qs,
                 u"https://loc\u00ADalhost/"_qs,
                 u"https://localhost\u200B/"_qs,
                 u"https://localhost。/"_qs,
                 u"https://１２７.0.0.1/"_qs,
                 u"https://127。0。0。1/"_qs,
                 u"https://①②⑦.1/"_qs,
                 u"https://%EF%BD%8Cocalhost/"_qs,
                 u"https://x.ＬＯＣＡＬ/"_qs,
             }) {
            QTest::newRow(qPrintable(input)) << input << InformationIntakeFailure::UnsupportedURL;
        }
    }

    void refused()
    {
        QFETCH(QString, input);
        QFETCH(InformationIntakeFailure, failure);

        const auto intake = InformationIntake::normalize(input);
        QVERIFY(!intake.has_value());
        QCOMPARE(intake.error(), failure);
    }

    void lengths_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("isTooLong");

        // Characters as a reader counts them, whatever they are made of.
        for (const QString& character :
             {u"a"_qs, u"中"_qs, u"😀"_qs, u"e\u0301"_qs, u"👍🏽"_qs,
              u"👩‍👩‍👧‍👦"_qs, u"🇨🇳"_qs, u"\u1112\u1161\u11AB"_qs}) {
            QTest::addRow("500 of %s", qPrintable(character)) << character.repeated(500) << false;
            QTest::addRow("501 of %s", qPrintable(character)) << character.repeated(501) << true;
        }
        QTest::newRow("blanks count once")
            << u"  "_qs + u"a"_qs.repeated(498) + u" \n\t\u3000 b  "_qs << false;
        QTest::newRow("a blank counts") << u"a"_qs.repeated(499) + u"   b"_qs << true;

        const QString address = u"https://example.com/"_qs;
        QTest::newRow("address of 500") << address + u"a"_qs.repeated(480) << false;
        QTest::newRow("address of 501") << address + u"a"_qs.repeated(481) << true;
        QTest::newRow("what is dropped does not count")
            << address + u"a"_qs.repeated(480) + u"/?utm_source=x#fragment"_qs << false;
        QTest::newRow("what is added counts") << u"www."_qs + u"a"_qs.repeated(489) << true;
        QTest::newRow("escapes count") << address + u"中"_qs.repeated(54) << true;
        QTest::newRow("a long host") << u"https://"_qs + u"a"_qs.repeated(1000) << true;
    }

    void lengths()
    {
        QFETCH(QString, input);
        QFETCH(bool, isTooLong);

        const auto intake = InformationIntake::normalize(input);
        QCOMPARE(intake.has_value(), !isTooLong);
        if (isTooLong) {
            QCOMPARE(intake.error(), InformationIntakeFailure::TooLong);
        }
    }

    void anUnsupportedAddressIsNeverTooLong()
    {
        const auto intake =
            InformationIntake::normalize(u"https://u@example.com/"_qs + u"a"_qs.repeated(600));
        QCOMPARE(intake.error(), InformationIntakeFailure::UnsupportedURL);
    }

    void contains_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("contained");

        QTest::newRow("same text") << u"One Two"_qs << u"One Two"_qs << true;
        QTest::newRow("same words") << u"one  two"_qs << u"ONE\ntwo"_qs << true;
        QTest::newRow("other words") << u"one two"_qs << u"onetwo"_qs << false;
        QTest::newRow("same address")
            << u"https://c.example/"_qs << u"HTTPS://C.example:443/#x"_qs << true;
        QTest::newRow("address without its scheme")
            << u"https://www.c.example"_qs << u"www.c.example"_qs << true;
        QTest::newRow("root path") << u"https://c.example"_qs << u"https://c.example/"_qs << false;
        QTest::newRow("address and text")
            << u"https://c.example"_qs << u"https://c.example x"_qs << false;
        QTest::newRow("stored one no longer read") << u"one"_qs << u"http://c.example"_qs << false;
    }

    void contains()
    {
        QFETCH(QString, input);
        QFETCH(QString, stored);
        QFETCH(bool, contained);

        const auto intake = InformationIntake::normalize(input);
        const auto other = sourceWith(u"something else"_qs);
        QVERIFY(!InformationIntake::contains(*intake, {}));
        QCOMPARE(InformationIntake::contains(*intake, {other, sourceWith(stored), other}),
                 contained);
    }

    void matchesTheFirstSignalOfAnAddress_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("id");

        QTest::newRow("follow target") << u"https://target.example/a"_qs << u"a"_qs;
        QTest::newRow("original") << u"https://original.example/b/?utm_source=x"_qs << u"b"_qs;
        QTest::newRow("of two the first") << u"https://shared.example/"_qs << u"a"_qs;
        QTest::newRow("no signal's") << u"https://other.example"_qs << QString();
        QTest::newRow("a sentence") << u"original example"_qs << QString();
    }

    void matchesTheFirstSignalOfAnAddress()
    {
        auto first = sampleSignal(u"a"_qs);
        first.followTarget.url = u"https://target.example/a"_qs;
        first.originalURL = u"https://shared.example/"_qs;
        auto second = sampleSignal(u"b"_qs);
        second.followTarget.url = u"https://shared.example/"_qs;
        second.originalURL = u"https://original.example/b"_qs;
        const QList signals{first, second};
        QFETCH(QString, input);

        const auto* const match =
            InformationIntake::match(InformationIntake::normalize(input).value(), signals);

        QTEST(match ? match->id : QString(), "id");
    }
};

TEST_SUBJECT(InformationIntakeTest)
#include "InformationIntakeTest.moc"
