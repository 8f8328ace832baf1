// SPDX-License-Identifier: Apache-2.0

#include "ColorContrast.h"
#include "SchemePalette.h"
#include "Subject.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <algorithm>

using ColorScheme = AppearancePortal::ColorScheme;

namespace {

constexpr double leastForText = 4.5;
constexpr double leastForParts = 3;

} // namespace

class InformationThemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_engine.addImportPath(u":/qt/qml"_qs);
        QQmlComponent component(&m_engine);
        component.setData("import QtQml\nimport CorvaniteInformation.Controls\n"
                          "QtObject { readonly property QtObject theme: InformationTheme }",
                          {});
        m_holder.reset(component.create());
        QVERIFY2(m_holder, qPrintable(component.errorString()));
        m_theme = m_holder->property("theme").value<QObject*>();
        QVERIFY(m_theme);
    }

    void cleanup() { QGuiApplication::setPalette({}); }

    void namedColors_data()
    {
        QTest::addColumn<QColor>("color");

        QTest::newRow("agate") << QColor::fromRgbF(0.71F, 0.20F, 0.24F);
        QTest::newRow("agateStrong") << QColor::fromRgbF(0.95F, 0.43F, 0.47F);
        QTest::newRow("citrine") << QColor::fromRgbF(0.95F, 0.73F, 0.34F);
        QTest::newRow("citrineDark") << QColor::fromRgbF(0.54F, 0.35F, 0.04F);
        QTest::newRow("malachite") << QColor::fromRgbF(0.47F, 0.74F, 0.59F);
        QTest::newRow("citrineInk") << QColor::fromRgbF(0.14F, 0.09F, 0.05F);
    }

    void namedColors()
    {
        QFETCH(const QColor, color);
        for (const auto scheme : {ColorScheme::Light, ColorScheme::Dark}) {
            QGuiApplication::setPalette(schemePalette(scheme));
            QCOMPARE(this->color(QTest::currentDataTag()).rgba(), color.rgba());
        }
    }

    void thePaletteDecidesTheTheme()
    {
        QGuiApplication::setPalette(schemePalette(ColorScheme::Dark));
        QVERIFY(m_theme->property("dark").toBool());
        QCOMPARE(color("canvas"), QColor(0x323232));
        QCOMPARE(color("card"), QColor(0x242424));
        QCOMPARE(color("ink"), QColor(0xEFECE8));

        QGuiApplication::setPalette(schemePalette(ColorScheme::Light));
        QVERIFY(!m_theme->property("dark").toBool());
        QCOMPARE(color("canvas"), QColor(0xEFEFEF));
        QCOMPARE(color("card"), QColor(0xFFFFFF));
        QCOMPARE(color("ink"), QColor(0x1F1C1A));
    }

    void aPaletteOnWhichTheInkDoesNotReadBringsItsOwn()
    {
        QPalette palette(QColor(0x909090), QColor(0x909090));
        palette.setColor(QPalette::WindowText, QColor(0x000030));
        QGuiApplication::setPalette(palette);
        for (const char* const role : {"ink", "ink2", "ink3"}) {
            QCOMPARE(color(role), QColor(0x000030));
        }
    }

    void theStrongHairlineIsStronger()
    {
        for (const auto scheme : {ColorScheme::Light, ColorScheme::Dark}) {
            QGuiApplication::setPalette(schemePalette(scheme));
            const auto onCanvas = [this](const char* role) {
                return ColorContrast::ratio(color(role), color("canvas"));
            };
            QVERIFY(onCanvas("hair") > 1.1);
            QVERIFY(onCanvas("hairStrong") > 1.2 * onCanvas("hair"));
        }
    }

    void contrast_data()
    {
        QTest::addColumn<QString>("above");
        QTest::addColumn<QStringList>("grounds");
        QTest::addColumn<double>("least");
        QTest::addColumn<double>("light");
        QTest::addColumn<double>("dark");

        const auto text = [](const char* above, const QStringList& grounds, double light,
                             double dark) {
            QTest::addRow("%s on %s", above, qPrintable(grounds.join(u" on "_qs)))
                << QString::fromLatin1(above) << grounds << leastForText << light << dark;
        };
        const auto part = [](const char* above, const QStringList& grounds, double light,
                             double dark) {
            QTest::addRow("the part %s on %s", above, qPrintable(grounds.join(u" on "_qs)))
                << QString::fromLatin1(above) << grounds << leastForParts << light << dark;
        };
        text("ink", {u"canvas"_qs}, 14.74, 10.89);
        text("ink", {u"card"_qs}, 16.95, 13.18);
        text("ink", {u"well"_qs}, 15.56, 11.99);
        text("ink", {u"raised"_qs}, 16.95, 9.64);
        text("ink2", {u"canvas"_qs}, 6.82, 6.51);
        text("ink2", {u"card"_qs}, 7.84, 7.88);
        text("ink2", {u"well"_qs}, 7.20, 7.17);
        text("ink2", {u"track"_qs}, 5.96, 7.78);
        text("ink2", {u"bannerWash"_qs}, 6.87, 6.32);
        text("ink3", {u"canvas"_qs}, 5.25, 5.56);
        text("ink3", {u"card"_qs}, 6.03, 6.73);
        text("ink3", {u"track"_qs}, 4.58, 6.65);
        text("accent", {u"canvas"_qs}, 5.21, 5.26);
        text("accent", {u"card"_qs}, 5.99, 6.37);
        text("accent", {u"well"_qs}, 5.50, 5.80);
        text("accent", {u"bannerWash"_qs}, 5.25, 5.11);
        text("accent", {u"raised"_qs}, 5.99, 4.66);
        text("accent", {u"accentWash"_qs}, 5.32, 5.74);
        text("agateStrong", {u"blockedGround"_qs}, 5.73, 5.73);
        text("citrineDark", {u"unstableGround"_qs}, 5.41, 4.88);
        text("citrineDark", {u"runningGround"_qs}, 5.24, 4.88);
        text("selectedChipInk", {u"selectedChip"_qs}, 16.95, 13.18);
        text("citrineInk", {u"citrine"_qs}, 9.92, 9.92);
        text("citrineInk", {u"citrinePressed"_qs, u"canvas"_qs}, 10.88, 6.92);
        text("citrineInk", {u"citrinePressed"_qs, u"card"_qs}, 11.28, 6.68);
        text("ink2", {u"quietPressed"_qs, u"canvas"_qs}, 6.07, 5.53);
        text("ink2", {u"quietPressed"_qs, u"raised"_qs}, 6.94, 4.93);
        text("ink2", {u"syncRest"_qs, u"canvas"_qs}, 6.17, 5.67);
        text("ink", {u"syncPressed"_qs, u"canvas"_qs}, 12.02, 8.15);
        text("ink3", {u"rowHover"_qs, u"canvas"_qs}, 4.75, 4.86);
        text("accent", {u"rowHover"_qs, u"canvas"_qs}, 4.72, 4.60);
        text("brandInk", {u"agate"_qs}, 5.99, 5.99);
        part("control", {u"card"_qs}, 3.91, 4.30);
        part("control", {u"canvas"_qs}, 3.40, 3.55);
        part("ring", {u"canvas"_qs}, 5.21, 5.26);
        part("accent", {u"thumb"_qs}, 5.99, 4.04);
    }

    void contrast()
    {
        QFETCH(const QString, above);
        QFETCH(const QStringList, grounds);
        QFETCH(const double, least);
        QFETCH(const double, light);
        QFETCH(const double, dark);
        for (const auto& [scheme, expected] :
             {std::pair(ColorScheme::Light, light), std::pair(ColorScheme::Dark, dark)}) {
            QGuiApplication::setPalette(schemePalette(scheme));
            auto ground = color(grounds.last());
            if (grounds.size() > 1) {
                ground = ColorContrast::over(color(grounds.first()), ground);
            }
            const auto ratio = ColorContrast::ratio(color(above), ground);
            QVERIFY2(ratio >= least, qPrintable(QString::number(ratio)));
            QVERIFY2(std::abs(ratio - expected) < 0.03, qPrintable(QString::number(ratio)));
        }
    }

    void reducedMotionLeavesNoDuration()
    {
        const auto* const meta = m_theme->metaObject();
        int durations = 0;
        m_theme->setProperty("reducedMotion", true);
        for (int index = meta->propertyOffset(); index < meta->propertyCount(); ++index) {
            const auto name = QByteArrayView(meta->property(index).name());
            if (name.endsWith("Duration") && name != "syncTurnDuration") {
                QCOMPARE(m_theme->property(name.data()).toInt(), 0);
                ++durations;
            }
        }
        m_theme->setProperty("reducedMotion", false);
        QVERIFY(durations > 5);
        QCOMPARE(m_theme->property("pressDuration").toInt(), 80);
    }

private:
    QColor color(const char* role) const { return m_theme->property(role).value<QColor>(); }
    QColor color(const QString& role) const { return color(role.toLatin1().constData()); }

    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_holder;
    QObject* m_theme = nullptr;
};

TEST_SUBJECT(InformationThemeTest)
#include "InformationThemeTest.moc"
