// SPDX-License-Identifier: Apache-2.0

#include "WellFormedText.h"
#include "Subject.h"

#include <QTest>

class WellFormedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyLoneHalvesAreReplaced_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("wellFormed");

        const QChar high(0xD83D);
        const QChar low(0xDE00);
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("pairs stay") << u"备注 😀"_qs << u"备注 😀"_qs;
        QTest::newRow("high alone") << u"a"_qs + high + u"b"_qs << u"a\uFFFDb"_qs;
        QTest::newRow("low alone") << u"a"_qs + low << u"a\uFFFD"_qs;
        QTest::newRow("low before a pair") << low + u"😀"_qs << u"\uFFFD😀"_qs;
        QTest::newRow("a mark at the start stays") << u"\uFEFFa"_qs + high << u"\uFEFFa\uFFFD"_qs;
    }

    void onlyLoneHalvesAreReplaced()
    {
        QFETCH(QString, text);
        QFETCH(QString, wellFormed);

        QCOMPARE(wellFormedText(text), wellFormed);
    }
};

TEST_SUBJECT(WellFormedTextTest)
#include "WellFormedTextTest.moc"
