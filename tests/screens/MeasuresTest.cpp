// SPDX-License-Identifier: Apache-2.0

#include "ScreenTour.h"
#include "Subject.h"

#include <QTest>

#include <functional>

/// Small things are where they were drawn, and as large.
class MeasuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_qs)); }

    void cleanup() { m_visit.reset(); }

    // They stood two pixels above it.
    void theLanesOfAWeekStandOnTheBaselineOfTheirTitles()
    {
        show(ScreenTour::goTo(InformationModel::Surface::Weekly));
        auto* const list = find(u"周报精选"_qs, QAccessible::List);
        const auto* const title =
            ScreenReader::find(list, u"Title of a"_qs, QAccessible::StaticText);
        const auto* const lane =
            ScreenReader::find(title->parentItem(), u"产品雷达"_qs, QAccessible::StaticText);
        QCOMPARE(baseline(lane), baseline(title));
    }

    void aDayOfTheArchiveHasItsAir()
    {
        show(ScreenTour::goTo(InformationModel::Surface::Archive));
        auto* const card = find(u"查看9月2日的完整精选"_qs, QAccessible::Button);
        const auto place = ScreenReader::place(card);
        QCOMPARE(place.top(), 329.0);
        QCOMPARE(place.height(), 183.0);
        for (const auto& first : {u"9月2日"_qs, u"精选："_qs}) {
            QCOMPARE(textIn(card, first).top() - place.top(), 24.0);
        }
        QCOMPARE(textIn(card, u"9月2日"_qs).left() - place.left(), 24.0);
        QCOMPARE(place.bottom() - textIn(card, u"当日共 22 条"_qs).bottom(), 24.0);
    }

    void aReceiptsStrokeHasRoundEnds()
    {
        show([](InformationModel& model) { model.toggleKeep(u"a"_qs); });
        auto* const bar = find(u"关闭回执"_qs, QAccessible::Button)->parentItem()->parentItem();
        auto* const stroke = rectangle(bar, {3, 24});
        QVERIFY(stroke);
        QCOMPARE(stroke->property("radius").toReal(), 1.5);
        QCOMPARE(stroke->property("color").value<QColor>(), malachite);
    }

    void theTickOfAKeptCardIsAsStrongAsItsLabel()
    {
        show([](InformationModel& model) { model.toggleKeep(u"a"_qs); });
        auto* const keep = find(u"从工作台移除并停止更新：Title of a"_qs, QAccessible::Button);
        auto* const tick = ScreenReader::findIf(
            keep, [](QQuickItem* item) { return item->property("stroke").isValid(); });
        QVERIFY(tick);
        QCOMPARE(tick->property("stroke").toReal(), 2.25);
        QCOMPARE(tick->property("color").value<QColor>(), malachite);
    }

private:
    const QColor malachite{0x78, 0xBD, 0x96};

    void show(const std::function<void(InformationModel&)>& act)
    {
        m_visit.emplace(ScreenTour::Stop{.name = {}, .act = act}, QSize(1120, 780));
    }

    QQuickItem* find(const QString& name, QAccessible::Role role)
    {
        return m_visit->window().awaited(name, role);
    }

    static qreal baseline(const QQuickItem* text)
    {
        return ScreenReader::place(text).top() + text->baselineOffset();
    }

    /// Where the text that begins so stands.
    static QRectF textIn(QQuickItem* root, const QString& beginning)
    {
        const auto* const text = ScreenReader::findIf(root, [&beginning](QQuickItem* item) {
            return item->inherits("QQuickText") &&
                   item->property("text").toString().startsWith(beginning);
        });
        return text ? ScreenReader::place(text) : QRectF();
    }

    static QQuickItem* rectangle(QQuickItem* root, QSizeF size)
    {
        return ScreenReader::findIf(root, [size](QQuickItem* item) {
            return item->inherits("QQuickRectangle") && item->size() == size;
        });
    }

    std::optional<ScreenTour::Visit> m_visit;
};

TEST_SUBJECT(MeasuresTest)
#include "MeasuresTest.moc"
