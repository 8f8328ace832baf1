// SPDX-License-Identifier: Apache-2.0

#include "ColorContrast.h"
#include "Subject.h"

#include <QTest>

class ColorContrastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void relativeLuminance_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<double>("luminance");

        QTest::newRow("black") << QColor(0, 0, 0) << 0.0;
        QTest::newRow("white") << QColor(255, 255, 255) << 1.0;
        QTest::newRow("red") << QColor(255, 0, 0) << 0.2126;
        QTest::newRow("green") << QColor(0, 255, 0) << 0.7152;
        QTest::newRow("blue") << QColor(0, 0, 255) << 0.0722;
        QTest::newRow("middle grey") << QColor(128, 128, 128) << 0.2159;
        QTest::newRow("dark enough for the linear part") << QColor(10, 10, 10) << 0.0030;
        QTest::newRow("opacity left out") << QColor(255, 255, 255, 10) << 1.0;
    }

    void relativeLuminance()
    {
        QFETCH(const QColor, color);
        QFETCH(const double, luminance);
        QVERIFY(std::abs(ColorContrast::relativeLuminance(color) - luminance) < 0.0001);
    }

    void ratio_data()
    {
        QTest::addColumn<QColor>("first");
        QTest::addColumn<QColor>("second");
        QTest::addColumn<double>("ratio");

        QTest::newRow("black on white") << QColor(0, 0, 0) << QColor(255, 255, 255) << 21.0;
        QTest::newRow("white on black") << QColor(255, 255, 255) << QColor(0, 0, 0) << 21.0;
        QTest::newRow("itself") << QColor(90, 12, 200) << QColor(90, 12, 200) << 1.0;
        QTest::newRow("the least grey for text on white")
            << QColor(0x76, 0x76, 0x76) << QColor(255, 255, 255) << 4.54;
    }

    void ratio()
    {
        QFETCH(const QColor, first);
        QFETCH(const QColor, second);
        QFETCH(const double, ratio);
        QVERIFY(std::abs(ColorContrast::ratio(first, second) - ratio) < 0.005);
    }

    void over_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QColor>("seen");

        QTest::newRow("opaque hides the ground") << QColor(1, 2, 3) << QColor(1, 2, 3);
        QTest::newRow("transparent shows the ground") << QColor(1, 2, 3, 0) << QColor(200, 100, 0);
        QTest::newRow("a fifth") << QColor(0, 0, 0, 51) << QColor(160, 80, 0);
    }

    void over()
    {
        QFETCH(const QColor, color);
        QFETCH(const QColor, seen);
        QCOMPARE(ColorContrast::over(color, QColor(200, 100, 0)).rgba(), seen.rgba());
    }
};

TEST_SUBJECT(ColorContrastTest)
#include "ColorContrastTest.moc"
