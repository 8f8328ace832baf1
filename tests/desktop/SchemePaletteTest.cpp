// SPDX-License-Identifier: Apache-2.0

#include "SchemePalette.h"
#include "ColorContrast.h"
#include "Subject.h"
#include "ThemeRules.h"

#include <QTest>

using ColorScheme = AppearancePortal::ColorScheme;

class SchemePaletteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void grounds_data()
    {
        QTest::addColumn<ColorScheme>("scheme");
        QTest::addColumn<QColor>("canvas");
        QTest::addColumn<QColor>("card");
        QTest::addColumn<bool>("dark");

        QTest::newRow("light") << ColorScheme::Light << QColor(0xEFEFEF) << QColor(0xFFFFFF)
                               << false;
        QTest::newRow("dark") << ColorScheme::Dark << QColor(0x323232) << QColor(0x242424) << true;
    }

    void grounds()
    {
        QFETCH(const ColorScheme, scheme);
        const auto palette = schemePalette(scheme);
        QTEST(palette.color(QPalette::Window), "canvas");
        QTEST(palette.color(QPalette::Base), "card");
        QTEST(ThemeRules::isDark(palette.color(QPalette::Window)), "dark");
        QVERIFY(ThemeRules::inkReads(palette.color(QPalette::WindowText),
                                     palette.color(QPalette::Window),
                                     palette.color(QPalette::Base)));
        QVERIFY(ColorContrast::ratio(palette.color(QPalette::HighlightedText),
                                     palette.color(QPalette::Highlight)) >= 4.5);
    }

    void withoutPreferenceTheToolkitKeepsItsOwn()
    {
        QCOMPARE(schemePalette(ColorScheme::NoPreference).resolveMask(), QPalette::ResolveMask{0});
    }
};

TEST_SUBJECT(SchemePaletteTest)
#include "SchemePaletteTest.moc"
