// SPDX-License-Identifier: Apache-2.0

#include "KeptMarkdown.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

class KeptMarkdownTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textStaysText_data()
    {
        QTest::addColumn<QString>("note");
        QTest::addColumn<QString>("item");

        QTest::newRow("plain") << u"备注，一句话。"_qs << u"备注，一句话。"_qs;
        QTest::newRow("emphasis") << u"*a* _b_ `c` ~d~"_qs << u"\\*a\\* \\_b\\_ \\`c\\` \\~d\\~"_qs;
        QTest::newRow("link") << u"[a](https://a.example/)"_qs << u"\\[a\\](https://a.example/)"_qs;
        QTest::newRow("HTML") << u"<b>&amp;"_qs << u"\\<b\\>\\&amp;"_qs;
        QTest::newRow("backslash") << u"C:\\ 路径\\"_qs << u"C:\\\\ 路径\\\\"_qs;
        QTest::newRow("hyphen inside") << u"open-source"_qs << u"open-source"_qs;
        QTest::newRow("lines") << u"a\nb"_qs << u"a\\\n  b"_qs;
        QTest::newRow("empty line") << u"a\n\nb"_qs << u"a\\\n  \\\n  b"_qs;
        QTest::newRow("heading") << u"a\n# b\n==="_qs << u"a\\\n  \\# b\\\n  \\==="_qs;
        QTest::newRow("list") << u"- a\n  + b"_qs << u"- a\\\n  \\+ b"_qs;
        QTest::newRow("numbered list") << u"1. a\n90) b"_qs << u"1. a\\\n  90\\) b"_qs;
        QTest::newRow("number") << u"3.5 (a)"_qs << u"3.5 (a)"_qs;
        QTest::newRow("code") << u"a\n    b"_qs << u"a\\\n  b"_qs;
    }

    void textStaysText()
    {
        QFETCH(const QString, note);
        QFETCH(const QString, item);
        const ExportedThread thread{
            .signal = std::nullopt, .keepings = {{u"id"_qs, {{}, {}, note}}}, .targetId = {}};

        const auto document = QString::fromUtf8(keptMarkdown({thread}, {}));

        QCOMPARE(
            document,
            u"# 已收下\n\n## id\n\n- **收下于**：1970-01-01\n- **自己的备注**：%1\n"_qs.arg(item));
    }

    void anEventWithoutADayIsNoListOfItsOwn()
    {
        auto signal = sampleSignal(u"a"_qs);
        signal.timeline = {{{}, u"2026-08-30"_qs, u"- Event"_qs, {}}};

        const auto document =
            keptMarkdown({{.signal = signal, .keepings = {}, .targetId = {}}}, {});

        QVERIFY2(document.endsWith("\n- \\- Event\n"), document.constData());
    }

    void aTitleLeadsWhereItMay_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("heading");

        QTest::newRow("open") << u"T"_qs << u"https://a.example/b?c=d&e"_qs
                              << u"[T](<https://a.example/b?c=d&e>)"_qs;
        QTest::newRow("other scheme") << u"T"_qs << u"javascript:alert(1)"_qs << u"T"_qs;
        QTest::newRow("end of the link") << u"T"_qs << u"https://a.example/>)<b>"_qs
                                         << u"[T](<https://a.example/%3E)%3Cb%3E>)"_qs;
        QTest::newRow("title with a link") << u"a](b)\nc"_qs << u"https://a.example/"_qs
                                           << u"[a\\](b) c](<https://a.example/>)"_qs;
    }

    void aTitleLeadsWhereItMay()
    {
        QFETCH(const QString, title);
        QFETCH(const QString, address);
        QFETCH(const QString, heading);
        auto signal = sampleSignal(u"a"_qs);
        signal.title = title;
        signal.originalURL = address;

        const auto document = QString::fromUtf8(
            keptMarkdown({{.signal = signal, .keepings = {}, .targetId = {}}}, {}));

        QVERIFY2(document.contains(u"\n## %1\n"_qs.arg(heading)), qPrintable(document));
    }
};

TEST_SUBJECT(KeptMarkdownTest)
#include "KeptMarkdownTest.moc"
