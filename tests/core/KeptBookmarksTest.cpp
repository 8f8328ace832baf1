// SPDX-License-Identifier: Apache-2.0

#include "KeptBookmarks.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

class KeptBookmarksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textStaysText()
    {
        auto signal = sampleSignal(u"a"_qs);
        signal.title = u"<i>\"T\" & more\nof it</i>"_qs;
        signal.originalURL = u"https://a.example/?a=\"b\"&c"_qs;
        const ExportedThread thread{
            .signal = signal, .keepings = {{u"a"_qs, {{}, {}, u"<DT>\n</DL>"_qs}}}, .targetId = {}};

        const auto document = QString::fromUtf8(keptBookmarks({thread}, {}));

        QVERIFY2(
            document.contains(u"<DT><A HREF=\"https://a.example/?a=%22b%22&amp;c\" ADD_DATE=\"0\">"
                              u"&lt;i&gt;&quot;T&quot; &amp; more of it&lt;/i&gt;</A>\n"_qs),
            qPrintable(document));
        QVERIFY(document.contains(u"自己的备注：&lt;DT&gt;<br>\n&lt;/DL&gt;<br>\n"));
    }

    void whatMayNotBeOpenedIsNoBookmark_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("entry");

        QTest::newRow("address") << u"https://a.example/"_qs
                                 << u"<DT><A HREF=\"https://a.example/\" ADD_DATE=\"7\">"
                                    u"https://a.example/</A>\n"_qs;
        QTest::newRow("sentence") << u"一句话"_qs << u"<DT>一句话\n"_qs;
        QTest::newRow("script") << u"javascript:alert(1)"_qs << u"<DT>javascript:alert(1)\n"_qs;
    }

    void whatMayNotBeOpenedIsNoBookmark()
    {
        QFETCH(const QString, input);
        QFETCH(const QString, entry);
        const CustomInformationSource source{
            {}, input, std::chrono::sys_seconds(std::chrono::seconds(7))};

        const auto document = QString::fromUtf8(keptBookmarks({}, {source}));

        QVERIFY2(document.contains(entry), qPrintable(document));
    }
};

TEST_SUBJECT(KeptBookmarksTest)
#include "KeptBookmarksTest.moc"
