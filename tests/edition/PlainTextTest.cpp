// SPDX-License-Identifier: Apache-2.0

#include "PlainText.h"
#include "Subject.h"

#include <QTest>

class PlainTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheWordsOfHtml_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("text");

        QTest::newRow("plain") << u" 一行\n 又一行 "_qs << u"一行 又一行"_qs;
        QTest::newRow("inline") << u"逐<b>日</b>记<A HREF='x'>录</A>"_qs << u"逐日记录"_qs;
        QTest::newRow("blocks") << u"<p>一</p><p>二<br/>三</p>"_qs << u"一 二 三"_qs;
        QTest::newRow("names") << u"A&amp;B &ldquo;C&rdquo;&hellip;"_qs << u"A&B “C”…"_qs;
        QTest::newRow("numbers") << u"&#65;&#x4E2D;&#X1F600;"_qs << u"A中\U0001F600"_qs;
        QTest::newRow("no characters")
            << u"&#0;&#xD800;&#x110000;&#x;&#;"_qs << u"&#0;&#xD800;&#x110000;&#x;&#;"_qs;
        QTest::newRow("unknown name") << u"&nosuch; & &; &"_qs << u"&nosuch; & &; &"_qs;
        QTest::newRow("once only") << u"&amp;lt;b&amp;gt;"_qs << u"&lt;b&gt;"_qs;
        QTest::newRow("comment") << u"a<!-- <b> -->b"_qs << u"a b"_qs;
        QTest::newRow("script") << u"a<script>if (x < 1) y()</SCRIPT >b"_qs << u"a b"_qs;
        QTest::newRow("style") << u"a<style>p > b {}</style>b"_qs << u"a b"_qs;
        QTest::newRow("less than") << u"1 < 2 <3"_qs << u"1 < 2 <3"_qs;
        QTest::newRow("open tag") << u"a <b"_qs << u"a"_qs;
        QTest::newRow("open comment") << u"a <!-- b"_qs << u"a"_qs;
        QTest::newRow("open script") << u"a <script> b"_qs << u"a"_qs;
        QTest::newRow("last character") << u"a <"_qs << u"a <"_qs;
    }

    void isTheWordsOfHtml()
    {
        QFETCH(QString, html);
        QTEST(PlainText::ofHtml(html), "text");
    }
};

TEST_SUBJECT(PlainTextTest)
#include "PlainTextTest.moc"
