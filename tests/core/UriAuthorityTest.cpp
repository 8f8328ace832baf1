#include "UriAuthority.h"
#include "Subject.h"

#include <QTest>

class UriAuthorityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void of_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<UriAuthority>>("expected");

        const auto row = [](const QString& text, const std::optional<UriAuthority>& expected) {
            QTest::newRow(text.isEmpty() ? "empty" : qPrintable(text)) << text << expected;
        };
        const std::optional<QString> none;
        row(u""_qs, UriAuthority{none, u""_qs, none});
        row(u"h.example"_qs, UriAuthority{none, u"h.example"_qs, none});
        row(u"h:8443"_qs, UriAuthority{none, u"h"_qs, u"8443"_qs});
        row(u"h:"_qs, UriAuthority{none, u"h"_qs, u""_qs});
        row(u":80"_qs, UriAuthority{none, u""_qs, u"80"_qs});
        row(u"h:99999999999999999999"_qs, UriAuthority{none, u"h"_qs, u"99999999999999999999"_qs});
        row(u"u@h"_qs, UriAuthority{u"u"_qs, u"h"_qs, none});
        row(u"u:p@h:1"_qs, UriAuthority{u"u:p"_qs, u"h"_qs, u"1"_qs});
        row(u"@h"_qs, UriAuthority{u""_qs, u"h"_qs, none});
        row(u":@h"_qs, UriAuthority{u":"_qs, u"h"_qs, none});
        row(u"@"_qs, UriAuthority{u""_qs, u""_qs, none});
        row(u"[::1]"_qs, UriAuthority{none, u"[::1]"_qs, none});
        row(u"u@[::1]:80"_qs, UriAuthority{u"u"_qs, u"[::1]"_qs, u"80"_qs});
        row(u"[]"_qs, UriAuthority{none, u"[]"_qs, none});
        row(u"中文|\\ %"_qs, UriAuthority{none, u"中文|\\ %"_qs, none});
        for (const QString& malformed :
             {u"a@b@h"_qs, u"h:1:2"_qs, u"::1"_qs, u"::1]"_qs, u"[::1"_qs, u"[[::1]]"_qs,
              u"[::1]x"_qs, u"x[::1]"_qs, u"h:x"_qs, u"h:-1"_qs, u"h:+1"_qs, u"h: 1"_qs, u"h:1 "_qs,
              u"h:１"_qs}) {
            row(malformed, std::nullopt);
        }
    }

    void of()
    {
        QFETCH(QString, text);
        QFETCH(std::optional<UriAuthority>, expected);

        QCOMPARE(UriAuthority::of(text), expected);
    }
};

TEST_SUBJECT(UriAuthorityTest)
#include "UriAuthorityTest.moc"
