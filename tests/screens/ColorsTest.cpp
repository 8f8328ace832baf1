// SPDX-License-Identifier: Apache-2.0

#include "SchemePalette.h"
#include "ScreenTour.h"
#include "SignalStrata.h"
#include "Subject.h"

#include <QGuiApplication>
#include <QTest>

#include <algorithm>
#include <cmath>

/// The colours that mean something are where they mean it.
class ColorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_qs));
        QGuiApplication::setPalette(schemePalette(AppearancePortal::ColorScheme::Light));
    }

    void cleanup()
    {
        m_visit.reset();
        QGuiApplication::setPalette({});
    }

    void theTextsThatCarryAMeaning_data()
    {
        QTest::addColumn<QString>("stop");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("inList");
        QTest::addColumn<QColor>("color");

        const QColor accent(0xB5333D);
        const QColor ink2(0x56514C);
        const QColor ink3(0x67625D);
        QTest::newRow("new in the list") << u"today"_qs << u"新"_qs << true << accent;
        QTest::newRow("seen in the list") << u"today"_qs << u"已看过"_qs << true << ink3;
        QTest::newRow("a failed sync")
            << u"sync failed"_qs << u"同步失败，继续使用当前内容"_qs << false << accent;
        QTest::newRow("a sync without news")
            << u"nothing newer"_qs << u"已是最新（"_qs << false << ink2;
        QTest::newRow("an update") << u"today"_qs << u"重要更新"_qs << false << accent;
        QTest::newRow("hard to reach")
            << u"today"_qs << u"国内访问受限"_qs << false << QColor(0xF26E78);
        QTest::newRow("unsteady") << u"today"_qs << u"访问可能不稳定"_qs << false
                                  << QColor(0x8A590A);
    }

    void theTextsThatCarryAMeaning()
    {
        QFETCH(const QString, stop);
        QFETCH(const QString, text);
        QFETCH(const bool, inList);
        QFETCH(const QColor, color);
        visit(stop);
        auto* const root = inList ? m_visit->window().find(u"今日全部"_qs, QAccessible::List)
                                  : m_visit->window().content();
        const auto* const shown = ScreenReader::findIf(root, [&text](QQuickItem* item) {
            return item->inherits("QQuickText") &&
                   item->property("text").toString().startsWith(text);
        });
        QVERIFY(shown);
        QCOMPARE(shown->property("color").value<QColor>(), color);
    }

    void theBandsOfAMarkAreSeen()
    {
        visit(u"today"_qs);
        auto* const mark = ScreenReader::findIf(m_visit->window().content(), [](QQuickItem* item) {
            return item->inherits("SignalStrataView");
        });
        QVERIFY(mark);
        const auto place = ScreenReader::place(mark);
        const auto picture = m_visit->window().window()->grabWindow();
        const double scale = place.width() / SignalStrata::side;
        for (const auto& band : SignalStrata::bands(mark->property("signalID").toString())) {
            const QPointF middle(band.x + band.width / 2, band.y + band.height / 2);
            const auto seen = picture.pixelColor((place.topLeft() + middle * scale).toPoint());
            const auto wanted = over(over(Qt::white, mark->property("color").value<QColor>(), 0.06),
                                     mark->property("color").value<QColor>(), band.opacity);
            QVERIFY(std::abs(seen.red() - wanted.red()) <= 3);
            QVERIFY(std::abs(seen.blue() - wanted.blue()) <= 3);
        }
    }

    void theDotsOfACardAreFainterThanItsText()
    {
        visit(u"today"_qs);
        auto* const card = m_visit->window().find(u"Title of a"_qs, QAccessible::ListItem);
        const auto* const dot = ScreenReader::findIf(card, [](QQuickItem* item) {
            return item->inherits("QQuickRectangle") && item->size() == QSizeF(3, 3);
        });
        QVERIFY(dot);
        const auto middle = ScreenReader::place(dot).topLeft().toPoint() + QPoint(1, 1);
        const auto seen = m_visit->window().window()->grabWindow().pixelColor(middle);
        QVERIFY2(std::abs(seen.red() - 0xA4) <= 3, qPrintable(seen.name()));
    }

private:
    static QColor over(const QColor& ground, const QColor& color, double opacity)
    {
        const auto mixed = [opacity](int below, int above) {
            return static_cast<int>(std::lround(below + (above - below) * opacity));
        };
        return {mixed(ground.red(), color.red()), mixed(ground.green(), color.green()),
                mixed(ground.blue(), color.blue())};
    }

    void visit(const QString& name)
    {
        const auto stops = ScreenTour::stops();
        const auto stop = std::ranges::find(stops, name, &ScreenTour::Stop::name);
        QVERIFY(stop != stops.cend());
        m_visit.emplace(*stop, QSize(1120, 2400));
    }

    std::optional<ScreenTour::Visit> m_visit;
};

TEST_SUBJECT(ColorsTest)
#include "ColorsTest.moc"
