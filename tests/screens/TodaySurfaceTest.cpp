// SPDX-License-Identifier: Apache-2.0

#include "ScreenTour.h"
#include "Subject.h"

#include <QTest>
#include <QtTest/qtest_gui.h>

#include <algorithm>

namespace {

void addTen(SampleModel& sample, InformationLane lane)
{
    for (int i = 0; i < 10; ++i) {
        auto signal = sampleSignal(rawValue(lane) + QString::number(i));
        signal.lane = lane;
        sample.signals.append(signal);
    }
}

} // namespace

/// Today's surface under the reader's hands.
class TodaySurfaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_qs));
        m_visit.emplace(ScreenTour::Stop{.name = u"today"_qs}, QSize(1120, 560));
    }

    void cleanup() { m_visit.reset(); }

    void theKeysThatTurnPages_data()
    {
        QTest::addColumn<Qt::Key>("forth");
        QTest::addColumn<Qt::Key>("back");
        QTest::addColumn<Qt::KeyboardModifiers>("backModifiers");

        const Qt::KeyboardModifiers none;
        QTest::newRow("Page keys") << Qt::Key_PageDown << Qt::Key_PageUp << none;
        QTest::newRow("arrows") << Qt::Key_Down << Qt::Key_Up << none;
        QTest::newRow("Home and End") << Qt::Key_End << Qt::Key_Home << none;
        QTest::newRow("Space") << Qt::Key_Space << Qt::Key_Space
                               << Qt::KeyboardModifiers(Qt::ShiftModifier);
    }

    void theKeysThatTurnPages()
    {
        QFETCH(const Qt::Key, forth);
        QFETCH(const Qt::Key, back);
        QFETCH(const Qt::KeyboardModifiers, backModifiers);
        const auto* const list = find(u"今天先看 3 条"_qs, QAccessible::LayeredPane);
        const auto top = list->property("contentY").toReal();

        window().pressKey(forth);
        QVERIFY(list->property("contentY").toReal() > top);
        window().pressKey(back, backModifiers);
        QCOMPARE(list->property("contentY").toReal(), top);
    }

    // Alt+Space scrolled the page.
    void aKeyWithAModifierTurnsNoPage_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");

        QTest::newRow("Alt") << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("Ctrl") << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Meta") << Qt::KeyboardModifiers(Qt::MetaModifier);
    }

    void aKeyWithAModifierTurnsNoPage()
    {
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        const auto* const list = find(u"今天先看 3 条"_qs, QAccessible::LayeredPane);
        const auto top = list->property("contentY").toReal();
        for (const auto& key : {Qt::Key_Space, Qt::Key_PageDown, Qt::Key_Down, Qt::Key_End}) {
            window().pressKey(key, modifiers);
            QCOMPARE(list->property("contentY").toReal(), top);
        }
    }

    void theKeysWalkTheList()
    {
        focus(u"打开脉络：Title of a"_qs, QAccessible::Button);
        for (const auto& [key, title] :
             {std::pair(Qt::Key_Down, u"b"_qs), std::pair(Qt::Key_End, u"f"_qs),
              std::pair(Qt::Key_Down, u"f"_qs), std::pair(Qt::Key_Up, u"e"_qs),
              std::pair(Qt::Key_Home, u"a"_qs), std::pair(Qt::Key_Up, u"a"_qs)}) {
            window().pressKey(key);
            const auto* const line = find(u"打开脉络：Title of "_qs + title, QAccessible::Button);
            QVERIFY2(line->hasActiveFocus(), qPrintable(title));
            // A view that makes a row its current one focuses it, and then the ring did not show.
            QVERIFY2(line->property("visualFocus").toBool(), qPrintable(title));
        }
    }

    void theListIsOneStopWhereTheFocusWasLast()
    {
        focus(u"打开脉络：Title of a"_qs, QAccessible::Button);
        window().pressKey(Qt::Key_Down);
        window().pressKey(Qt::Key_Tab);
        QVERIFY(!window().hasFocus(u"打开脉络：Title of c"_qs, QAccessible::Button));
        window().pressKey(Qt::Key_Backtab);
        QVERIFY(window().hasFocus(u"打开脉络：Title of b"_qs, QAccessible::Button));
    }

    void whereThatLineIsOutOfSightTheStopIsOneThatIsSeen_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QAccessible::Role>("role");

        QTest::newRow("beside the cards")
            << QSize(1120, 780) << u"今日全部"_qs << QAccessible::List;
        QTest::newRow("below them")
            << QSize(760, 560) << u"今天先看 3 条"_qs << QAccessible::LayeredPane;
    }

    void whereThatLineIsOutOfSightTheStopIsOneThatIsSeen()
    {
        QFETCH(const QSize, size);
        QFETCH(const QString, name);
        QFETCH(const QAccessible::Role, role);
        m_visit.emplace(ScreenTour::Stop{.name = {},
                                         .prepare =
                                             [](SampleModel& sample) {
                                                 addTen(sample, InformationLane::Workflow);
                                                 addTen(sample, InformationLane::FounderStory);
                                             }},
                        size);
        window().window()->setProperty("readAloud", false);
        auto* const pane = find(name, role);
        QMetaObject::invokeMethod(pane, "positionViewAtEnd");
        window().settle();
        const auto seen = pane->property("contentY").toReal();

        constexpr int atMost = 40;
        for (int i = 0; i < atMost && !focusedName().startsWith(u"打开脉络："); ++i) {
            window().pressKey(Qt::Key_Tab);
        }
        QVERIFY(focusedName().startsWith(u"打开脉络："));
        QCOMPARE(pane->property("contentY").toReal(), seen);
    }

    void theArrowsChooseALane()
    {
        focus(u"全部 6"_qs, QAccessible::RadioButton);
        window().pressKey(Qt::Key_Right);
        QCOMPARE(model().activeLane(), InformationLane::OpenSourceGrowth);
        QVERIFY(window().hasFocus(u"开源增长 1"_qs, QAccessible::RadioButton));
        window().pressKey(Qt::Key_Left);
        QCOMPARE(model().activeLane(), std::nullopt);
        QVERIFY(window().hasFocus(u"全部 6"_qs, QAccessible::RadioButton));
    }

    void everyWayToOpenACard_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Enter") << Qt::Key_Return;
        QTest::newRow("Space") << Qt::Key_Space;
        QTest::newRow("a press on its title") << Qt::Key_unknown;
    }

    void everyWayToOpenACard()
    {
        QFETCH(const Qt::Key, key);
        focus(u"Title of a"_qs, QAccessible::ListItem);
        if (key != Qt::Key_unknown) {
            window().pressKey(key);
        } else {
            click(find(u"Title of a"_qs, QAccessible::Heading));
        }
        QVERIFY(window().awaited(u"Title of a"_qs, QAccessible::Dialog));
    }

    void anAnswerToACardDoesNotOpenIt()
    {
        auto* const keep = window().find(u"收下并持续更新：Title of a"_qs, QAccessible::Button);
        keep->forceActiveFocus(Qt::TabFocusReason);
        window().settle();
        click(keep);
        QVERIFY(model().isKept(model().signalById(u"a"_qs).value()));
        QVERIFY(!find(u"Title of a"_qs, QAccessible::Dialog));
        QVERIFY(find(u"从工作台移除并停止更新：Title of a"_qs, QAccessible::Button));
    }

    void whatWasOpenedIsSeen()
    {
        window().press(u"打开脉络：Title of a"_qs);
        window().pressKey(Qt::Key_Escape);
        QTRY_VERIFY(!find(u"Title of a"_qs, QAccessible::Dialog));
        QCOMPARE(ScreenReader::description(find(u"打开脉络：Title of a"_qs, QAccessible::Button)),
                 u"已看过"_qs);
        QVERIFY(ScreenReader::description(find(u"Title of a"_qs, QAccessible::ListItem))
                    .contains(u"，已看过\n"_qs));
    }

    void theRemainingCardsUnfold()
    {
        window().resize(QSize(1120, 1700));
        window().window()->setProperty("reducedMotion", false);
        ScreenReader::press(find(disclosure, QAccessible::Button));
        QCOMPARE(surface()->property("unfolded").toReal(), 0.0);
        auto* const card = window().awaited(u"Title of d"_qs, QAccessible::ListItem);
        QVERIFY(card);
        const auto* const row = rowAround(card);
        const auto unfolded = surface()->property("unfolded").toReal();
        QCOMPARE(row->opacity(), unfolded);
        QCOMPARE(row->implicitHeight(), row->childItems().constFirst()->height() * unfolded);
        QTRY_COMPARE(surface()->property("unfolded").toReal(), 1.0);

        ScreenReader::press(find(disclosure, QAccessible::Button));
        QVERIFY(find(u"Title of d"_qs, QAccessible::ListItem));
        QTRY_VERIFY(!find(u"Title of d"_qs, QAccessible::ListItem));
    }

    void asManyTakeTheirHeightAsAreSeen_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("count");

        QTest::newRow("at the lower edge") << 560 << 0;
        QTest::newRow("above room for one and a half") << 1700 << 2;
    }

    void asManyTakeTheirHeightAsAreSeen()
    {
        QFETCH(int, height);
        window().resize(QSize(1120, height));
        focus(disclosure, QAccessible::Button);

        ScreenReader::press(find(disclosure, QAccessible::Button));

        QTEST(surface()->property("foldingCards").toInt(), "count");
    }

    // It was folded again once its card had been out of reach.
    void whatChangedStaysUnfolded()
    {
        window().press(u"看变化"_qs);
        QVERIFY(find(u"这次变了什么"_qs, QAccessible::Heading));
        model().setActiveLane(InformationLane::FounderStory);
        window().settle();
        QVERIFY(!find(u"这次变了什么"_qs, QAccessible::Heading));
        model().setActiveLane(std::nullopt);
        window().settle();
        QVERIFY(find(u"这次变了什么"_qs, QAccessible::Heading));
    }

    void aLaneWithoutACardLeadsBackToAll()
    {
        model().reduceSimilar(u"e"_qs);
        model().setActiveLane(InformationLane::FounderStory);
        window().settle();
        QVERIFY(find(u"这一类今天没有条目"_qs, QAccessible::Heading));
        window().press(u"看全部"_qs);
        QCOMPARE(model().activeLane(), std::nullopt);
        QVERIFY(!find(u"这一类今天没有条目"_qs, QAccessible::Heading));
    }

    void theChipsKeepToOneLine()
    {
        m_visit.emplace(ScreenTour::Stop{.name = {},
                                         .prepare =
                                             [](SampleModel& sample) {
                                                 for (const auto& [lane, token] :
                                                      vocabulary<InformationLane>) {
                                                     addTen(sample, lane);
                                                 }
                                             }},
                        QSize(1120, 780));
        const auto first = ScreenReader::place(find(u"全部 66"_qs, QAccessible::RadioButton));
        const auto last = ScreenReader::place(find(u"平台变化 11"_qs, QAccessible::RadioButton));
        QCOMPARE(last.top(), first.top());
    }

    void aChipTakesAScreenReadersToggle()
    {
        auto* const chip = find(u"创业复盘 1"_qs, QAccessible::RadioButton);
        QAccessible::queryAccessibleInterface(chip)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
        QCOMPARE(model().activeLane(), InformationLane::FounderStory);
    }

    void theLastLineOfTheListIsNotDimmed()
    {
        m_visit.emplace(ScreenTour::Stop{.name = {},
                                         .prepare =
                                             [](SampleModel& sample) {
                                                 addTen(sample, InformationLane::Workflow);
                                                 addTen(sample, InformationLane::FounderStory);
                                             }},
                        QSize(1120, 780));
        auto* const list = find(u"今日全部"_qs, QAccessible::List);
        const auto* const fade = fadeBeside(list);
        QVERIFY(fade && fade->isVisible());
        focus(u"打开脉络：Title of a"_qs, QAccessible::Button);
        window().pressKey(Qt::Key_End);
        QVERIFY(list->property("atYEnd").toBool());
        QVERIFY(!fade->isVisible());
    }

    void theHoursHavePassedWhenTheReaderComesBack()
    {
        const auto card = [this] {
            return ScreenReader::description(find(u"Title of a"_qs, QAccessible::ListItem));
        };
        QVERIFY(card().contains(u"，4 小时前核验\n"));
        constexpr double hours = 2 * 3600;
        window().turnAway([this] { m_visit->sample().now += hours; });
        QVERIFY(card().contains(u"，6 小时前核验\n"));
    }

    void theAdjustmentsCanBeReset()
    {
        model().reduceSimilar(u"a"_qs);
        window().settle();
        window().press(u"重置调整"_qs);
        QVERIFY(model().workspace().hidden.isEmpty());
        QVERIFY(!find(u"重置调整"_qs, QAccessible::Button));
    }

    void inOnePaneTheListFollowsTheCards()
    {
        window().resize({760, 560});
        const auto* const column = find(u"今天先看 3 条"_qs, QAccessible::LayeredPane);
        const auto* const line = find(u"打开脉络：Title of a"_qs, QAccessible::Button);
        QVERIFY(ScreenReader::isWithin(column, line));
        focus(u"打开脉络：Title of a"_qs, QAccessible::Button);
        window().pressKey(Qt::Key_Down);
        QVERIFY(window().hasFocus(u"打开脉络：Title of b"_qs, QAccessible::Button));
        window().pressKey(Qt::Key_Home);
        QVERIFY(window().hasFocus(u"打开脉络：Title of a"_qs, QAccessible::Button));
    }

    void aCardKeepsTheFocusWhileThePanesChange()
    {
        focus(u"Title of b"_qs, QAccessible::ListItem);
        for (const QSize size : {QSize(760, 560), QSize(1120, 560)}) {
            window().resize(size);
            QVERIFY(window().hasFocus(u"Title of b"_qs, QAccessible::ListItem));
        }
    }

private:
    const QString disclosure = u"其余 3 条已替你排好，需要时再展开，不会丢失。"_qs;

    QQuickItem* surface()
    {
        return find(u"今天先看 3 条"_qs, QAccessible::LayeredPane)->parentItem();
    }

    /// The list's row that the item is in.
    static const QQuickItem* rowAround(const QQuickItem* item)
    {
        while (item && item->metaObject()->indexOfProperty("unfolded") < 0) {
            item = item->parentItem();
        }
        return item;
    }

    static const QQuickItem* fadeBeside(const QQuickItem* list)
    {
        const auto siblings = list->parentItem()->childItems();
        const auto fade = std::ranges::find_if(siblings, [](const QQuickItem* item) {
            return item->inherits("QQuickRectangle") && item->height() == 24;
        });
        return fade == siblings.cend() ? nullptr : *fade;
    }

    WorkbenchWindow& window() { return m_visit->window(); }
    InformationModel& model() { return m_visit->model(); }

    QQuickItem* find(const QString& name, QAccessible::Role role)
    {
        return window().find(name, role);
    }

    QString focusedName() { return ScreenReader::name(window().window()->activeFocusItem()); }

    void focus(const QString& name, QAccessible::Role role)
    {
        window().awaited(name, role)->forceActiveFocus(Qt::TabFocusReason);
        window().settle();
    }

    void click(const QQuickItem* item)
    {
        const auto center = ScreenReader::place(item).center();
        QTest::mouseClick(window().window(), Qt::LeftButton, {}, center.toPoint());
        window().settle();
    }

    std::optional<ScreenTour::Visit> m_visit;
};

TEST_SUBJECT(TodaySurfaceTest)
#include "TodaySurfaceTest.moc"
