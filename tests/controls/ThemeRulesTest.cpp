// SPDX-License-Identifier: Apache-2.0

#include "ThemeRules.h"
#include "Subject.h"

#include <QTest>

class ThemeRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isDark_data()
    {
        QTest::addColumn<QColor>("canvas");
        QTest::addColumn<bool>("dark");

        QTest::newRow("the toolkit's light window") << QColor(0xEFEFEF) << false;
        QTest::newRow("the toolkit's dark window") << QColor(0x323232) << true;
        QTest::newRow("just below a luminance of 0.18") << QColor(0x757575) << true;
        QTest::newRow("just above a luminance of 0.18") << QColor(0x767676) << false;
    }

    void isDark()
    {
        QFETCH(const QColor, canvas);
        QTEST(ThemeRules::isDark(canvas), "dark");
    }

    void inkReads_data()
    {
        QTest::addColumn<QColor>("canvas");
        QTest::addColumn<QColor>("card");
        QTest::addColumn<bool>("reads");

        QTest::newRow("the toolkit's grounds") << QColor(0xEFEFEF) << QColor(0xFFFFFF) << true;
        QTest::newRow("a canvas too dim") << QColor(0x808080) << QColor(0xFFFFFF) << false;
        QTest::newRow("a card too dim") << QColor(0xEFEFEF) << QColor(0x808080) << false;
    }

    void inkReads()
    {
        QFETCH(const QColor, canvas);
        QFETCH(const QColor, card);
        QTEST(ThemeRules::inkReads(QColor(0x1F1C1A), canvas, card), "reads");
    }
};

TEST_SUBJECT(ThemeRulesTest)
#include "ThemeRulesTest.moc"
