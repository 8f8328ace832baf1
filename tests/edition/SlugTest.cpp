// SPDX-License-Identifier: Apache-2.0

#include "Slug.h"
#include "Subject.h"

#include <QTest>

class SlugTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinsWordsByHyphens_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("slug");

        QTest::newRow("words") << u" Kite 2.0: Offline!"_qs << u"kite-2-0-offline"_qs;
        QTest::newRow("host") << u"blog.example.org"_qs << u"blog-example-org"_qs;
        QTest::newRow("Chinese between") << u"纸鸢Kite发布v2"_qs << u"kite-v2"_qs;
        QTest::newRow("Chinese alone") << u"纸鸢"_qs << QString();
        QTest::newRow("other digits and letters") << u"٣ é"_qs << QString();
        QTest::newRow("cut at a hyphen") << QString(59, u'a') + u" bc"_qs << QString(59, u'a');
        QTest::newRow("long") << QString(100, u'a') << QString(60, u'a');
    }

    void joinsWordsByHyphens()
    {
        QFETCH(QString, text);
        QTEST(Slug::of(text), "slug");
    }

    void standsForATextByEightDigits() { QCOMPARE(Slug::digest(u"abc"_qs), u"ba7816bf"_qs); }
};

TEST_SUBJECT(SlugTest)
#include "SlugTest.moc"
