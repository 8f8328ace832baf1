// SPDX-License-Identifier: Apache-2.0

#include "UriComponents.h"
#include "Subject.h"

#include <QTest>

using OptionalText = std::optional<QString>;
using Authority = UriComponents::Authority;

class UriComponentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void of_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<OptionalText>("scheme");
        QTest::addColumn<OptionalText>("authority");
        QTest::addColumn<QString>("path");
        QTest::addColumn<OptionalText>("query");
        QTest::addColumn<OptionalText>("fragment");

        const OptionalText none;
        const auto row = [](const QString& text, const OptionalText& scheme,
                            const OptionalText& authority, const QString& path,
                            const OptionalText& query, const OptionalText& fragment) {
            QTest::newRow(qPrintable(text))
                << text << scheme << authority << path << query << fragment;
        };
        row(u""_qs, none, none, u""_qs, none, none);
        row(u"https://u@h.example:8/a/b?c=d#e"_qs, u"https"_qs, u"u@h.example:8"_qs, u"/a/b"_qs,
            u"c=d"_qs, u"e"_qs);
        row(u"HTTPS://H"_qs, u"HTTPS"_qs, u"H"_qs, u""_qs, none, none);
        row(u"https://h?q"_qs, u"https"_qs, u"h"_qs, u""_qs, u"q"_qs, none);
        row(u"https://h#f?g"_qs, u"https"_qs, u"h"_qs, u""_qs, none, u"f?g"_qs);
        row(u"https://h/?#"_qs, u"https"_qs, u"h"_qs, u"/"_qs, u""_qs, u""_qs);
        row(u"https://h/??a#b#c"_qs, u"https"_qs, u"h"_qs, u"/"_qs, u"?a"_qs, u"b#c"_qs);
        row(u"https:///x"_qs, u"https"_qs, u""_qs, u"/x"_qs, none, none);
        row(u"https://"_qs, u"https"_qs, u""_qs, u""_qs, none, none);
        row(u"https:/x"_qs, u"https"_qs, none, u"/x"_qs, none, none);
        row(u"https:x"_qs, u"https"_qs, none, u"x"_qs, none, none);
        row(u"https:"_qs, u"https"_qs, none, u""_qs, none, none);
        row(u"//h/x"_qs, none, u"h"_qs, u"/x"_qs, none, none);
        row(u"urn:isbn:1"_qs, u"urn"_qs, none, u"isbn:1"_qs, none, none);
        row(u"view-source+x.1:y"_qs, u"view-source+x.1"_qs, none, u"y"_qs, none, none);
        row(u"azAZ09:y"_qs, u"azAZ09"_qs, none, u"y"_qs, none, none);
        row(u"z:y"_qs, u"z"_qs, none, u"y"_qs, none, none);
        row(u"A:y"_qs, u"A"_qs, none, u"y"_qs, none, none);
        row(u"Z:y"_qs, u"Z"_qs, none, u"y"_qs, none, none);
        // No scheme.
        row(u"3:1"_qs, none, none, u"3:1"_qs, none, none);
        row(u"10.0.0.1:80"_qs, none, none, u"10.0.0.1:80"_qs, none, none);
        row(u":x"_qs, none, none, u":x"_qs, none, none);
        row(u" https://h"_qs, none, none, u" https://h"_qs, none, none);
        row(u"提醒:x"_qs, none, none, u"提醒:x"_qs, none, none);
        row(u"?q=1:2"_qs, none, none, u""_qs, u"q=1:2"_qs, none);
        row(u"#a:b"_qs, none, none, u""_qs, none, u"a:b"_qs);
        row(u"a/b:c"_qs, none, none, u"a/b:c"_qs, none, none);
        // White space and control characters are characters like others.
        row(u"https://h/a\nb c?d\ne#f\n"_qs, u"https"_qs, u"h"_qs, u"/a\nb c"_qs, u"d\ne"_qs,
            u"f\n"_qs);
        row(u"https://h\\@i/\\"_qs, u"https"_qs, u"h\\@i"_qs, u"/\\"_qs, none, none);
    }

    void of()
    {
        QFETCH(QString, text);
        QFETCH(OptionalText, scheme);
        QFETCH(OptionalText, authority);
        QFETCH(QString, path);
        QFETCH(OptionalText, query);
        QFETCH(OptionalText, fragment);

        const UriComponents components = UriComponents::of(text);
        QCOMPARE(components.scheme, scheme);
        QCOMPARE(components.authority, authority);
        QCOMPARE(components.path, path);
        QCOMPARE(components.query, query);
        QCOMPARE(components.fragment, fragment);
    }

    void authorityParts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<Authority>>("expected");

        const auto row = [](const QString& text, const std::optional<Authority>& expected) {
            QTest::newRow(text.isEmpty() ? "empty" : qPrintable(text)) << text << expected;
        };
        const OptionalText none;
        row(u""_qs, Authority{none, u""_qs, none});
        row(u"h.example"_qs, Authority{none, u"h.example"_qs, none});
        row(u"h:8443"_qs, Authority{none, u"h"_qs, u"8443"_qs});
        row(u"h:"_qs, Authority{none, u"h"_qs, u""_qs});
        row(u":80"_qs, Authority{none, u""_qs, u"80"_qs});
        row(u"h:99999999999999999999"_qs, Authority{none, u"h"_qs, u"99999999999999999999"_qs});
        row(u"u@h"_qs, Authority{u"u"_qs, u"h"_qs, none});
        row(u"u:p@h:1"_qs, Authority{u"u:p"_qs, u"h"_qs, u"1"_qs});
        row(u"@h"_qs, Authority{u""_qs, u"h"_qs, none});
        row(u":@h"_qs, Authority{u":"_qs, u"h"_qs, none});
        row(u"@"_qs, Authority{u""_qs, u""_qs, none});
        row(u"[::1]"_qs, Authority{none, u"[::1]"_qs, none});
        row(u"u@[::1]:80"_qs, Authority{u"u"_qs, u"[::1]"_qs, u"80"_qs});
        row(u"[]"_qs, Authority{none, u"[]"_qs, none});
        row(u"中文|\\ %"_qs, Authority{none, u"中文|\\ %"_qs, none});
        for (const QString& malformed :
             {u"a@b@h"_qs, u"h:1:2"_qs, u"::1"_qs, u"::1]"_qs, u"[::1"_qs, u"[[::1]]"_qs,
              u"[::1]x"_qs, u"x[::1]"_qs, u"h:x"_qs, u"h:-1"_qs, u"h:+1"_qs, u"h: 1"_qs, u"h:1 "_qs,
              u"h:１"_qs}) {
            row(malformed, std::nullopt);
        }
    }

    void authorityParts()
    {
        QFETCH(QString, text);
        QFETCH(std::optional<Authority>, expected);

        QCOMPARE(UriComponents::of(u"https://"_qs + text + u"/p?q"_qs).authorityParts(), expected);
    }

    void withoutAnAuthorityThereAreNoParts()
    {
        QCOMPARE(UriComponents::of(u"https:/x"_qs).authorityParts(), std::nullopt);
    }
};

TEST_SUBJECT(UriComponentsTest)
#include "UriComponentsTest.moc"
