// SPDX-License-Identifier: Apache-2.0

#include "ScreenTour.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QPointer>
#include <QSet>
#include <QTest>
#include <QtTest/qtest_gui.h>

#include <algorithm>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace {

/// Of a row of these one is a stop of the Tab key; the arrow keys lead to the others.
bool isOneOfARow(QQuickItem* item)
{
    const auto role = ScreenReader::role(item);
    return role == QAccessible::PageTab || role == QAccessible::RadioButton ||
           ScreenReader::name(item).startsWith(u"打开脉络：");
}

bool isForUse(QQuickItem* item)
{
    return item->inherits("Pressable") || item->inherits("QQuickTextInput") ||
           item->inherits("QQuickTextEdit");
}

bool hasALongList(const QString& stop)
{
    return QStringList{u"today"_qs,   u"today, everything unfolded"_qs,
                       u"kept"_qs,    u"weekly"_qs,
                       u"archive"_qs, u"archived day"_qs}
        .contains(stop);
}

/// What a screen reader was told last to have the focus.
QPointer<QObject> lastFocus;

void hear(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::Focus) {
        lastFocus = event->object();
    }
}

/// Without a real screen Qt tells nothing by itself.
void listen(bool listening)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(listening);
    QAccessible::installUpdateHandler(listening ? hear : nullptr);
}

} // namespace

/// Everything that can be done by pointer can be done without one.
class KeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_qs));
        listen(true);
    }

    void cleanup() { listen(false); }

    void theTabKeyReachesEverything_data() { ScreenTour::addRows(); }

    void theTabKeyReachesEverything()
    {
        QFETCH(const ScreenTour::Stop, stop);
        ScreenTour::Visit visit(stop, {1120, 780});
        const auto& window = visit.window();

        const auto stops = walk(window, Qt::Key_Tab);
        QCOMPARE(m_faults.join(u'\n'), QString());
        auto back = walk(window, Qt::Key_Backtab);
        QCOMPARE(m_faults.join(u'\n'), QString());
        QCOMPARE(QSet(back.cbegin(), back.cend()), QSet(stops.cbegin(), stops.cend()));

        QStringList unreached;
        collectUnreached(topmost(window), stops, unreached);
        QCOMPARE(unreached.join(u'\n'), QString());
    }

    // Lists hold just what is seen then.
    void theTabKeyReachesTheSameWithoutAScreenReader_data()
    {
        QTest::addColumn<ScreenTour::Stop>("stop");
        QTest::addColumn<QSize>("size");
        for (const auto& stop : ScreenTour::stops()) {
            for (const QSize size : {QSize(1120, 560), QSize(760, 560)}) {
                if (hasALongList(stop.name)) {
                    QTest::addRow("%s, %d", qPrintable(stop.name), size.width()) << stop << size;
                }
            }
        }
    }

    void theTabKeyReachesTheSameWithoutAScreenReader()
    {
        QFETCH(const ScreenTour::Stop, stop);
        QFETCH(const QSize, size);
        QCOMPARE(namesOnTheWay(stop, size, false), namesOnTheWay(stop, size, true));
    }

    void theOrderOfTheTabKey()
    {
        const ScreenTour::Stop stop{
            .name = u"a receipt"_qs,
            .prepare =
                [](SampleModel& sample) {
                    sample.site->answers.insert(
                        SiteClient::appVersionPath,
                        SiteReply{.body = SiteDocuments::appVersion(u"1.2.3"_qs), .status = 200});
                },
            .act = [](InformationModel& model) { model.toggleKeep(u"a"_qs); },
            .open =
                [](const WorkbenchWindow& window) {
                    window.awaited(u"获取更新"_qs, QAccessible::Button);
                }};
        ScreenTour::Visit visit(stop, {1120, 780});
        visit.window()
            .find(u"获取更新"_qs, QAccessible::Button)
            ->forceActiveFocus(Qt::BacktabFocusReason);
        QStringList names{u"获取更新"_qs};
        const auto stops = walk(visit.window(), Qt::Key_Tab);
        for (auto* const focused : stops) {
            names.append(ScreenReader::name(focused));
        }

        qsizetype last = -1;
        for (const auto& name :
             {u"获取更新"_qs, u"关闭更新提示"_qs, u"今天"_qs, u"同步站点"_qs, u"添加信息"_qs,
              u"全部 6"_qs, u"Title of a"_qs, u"从工作台移除并停止更新：Title of a"_qs,
              u"Title of c"_qs, u"打开脉络：Title of a"_qs, u"往期精选"_qs, u"RSS"_qs, u"撤销"_qs,
              u"关闭回执"_qs, u"最小化"_qs, u"关闭窗口"_qs}) {
            const auto position = names.indexOf(name);
            QVERIFY2(position > last, qPrintable(name));
            last = position;
        }
    }

    // The keys went on to the button in the header.
    void aPressOnAPanesGroundTakesTheKeyboardIntoIt_data()
    {
        QTest::addColumn<bool>("leftACard");

        QTest::newRow("for the first time") << false;
        QTest::newRow("which a card had the keyboard of") << true;
    }

    void aPressOnAPanesGroundTakesTheKeyboardIntoIt()
    {
        QFETCH(const bool, leftACard);
        ScreenTour::Visit visit({.name = {}}, {1120, 560});
        const auto& window = visit.window();
        auto* const pane = window.find(u"今天先看 3 条"_qs, QAccessible::LayeredPane);
        if (leftACard) {
            window.find(u"Title of a"_qs, QAccessible::ListItem)
                ->forceActiveFocus(Qt::TabFocusReason);
        }
        window.find(u"添加信息"_qs, QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);

        const auto corner = ScreenReader::place(pane).topLeft().toPoint();
        QTest::mouseClick(window.window(), Qt::LeftButton, {}, corner + QPoint(8, 8));

        for (const auto& key : {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Space}) {
            const auto before = pane->property("contentY").toReal();
            window.pressKey(key);
            QVERIFY(pane->property("contentY").toReal() != before);
        }
        window.pressKey(Qt::Key_Tab);
        QVERIFY(ScreenReader::isWithin(pane, window.window()->activeFocusItem()));
    }

private:
    /// What the key leads to from where the focus is, until it has come round.
    QList<QQuickItem*> walk(const WorkbenchWindow& window, Qt::Key key)
    {
        constexpr int atMost = 400;
        m_faults.clear();
        QList<QQuickItem*> stops;
        for (int i = 0; i < atMost; ++i) {
            QTest::keyClick(window.window(), key);
            auto* const focused = window.window()->activeFocusItem();
            if (!focused || stops.contains(focused)) {
                return stops;
            }
            stops.append(focused);
            if (isForUse(focused)) {
                if (lastFocus != focused) {
                    m_faults.append(u"not told: "_qs + ScreenReader::name(focused));
                }
                window.settle();
                inspect(focused);
            }
        }
        m_faults.append(u"the keys do not come round"_qs);
        return stops;
    }

    /// What the Tab key leads to up to the window's last stop, and back from there.
    static QStringList namesOnTheWay(const ScreenTour::Stop& stop, QSize size, bool readAloud)
    {
        ScreenTour::Visit visit(stop, size);
        const auto& window = visit.window();
        window.window()->setProperty("readAloud", readAloud);
        window.settle();
        const auto press = [&window](Qt::Key key) {
            window.pressKey(key);
            return ScreenReader::name(window.window()->activeFocusItem());
        };
        constexpr qsizetype atMost = 100;
        QStringList names{press(Qt::Key_Tab)};
        while (names.constLast() != u"关闭窗口" && names.size() < atMost) {
            names.append(press(Qt::Key_Tab));
        }
        for (auto back = names.size(); back > 1; --back) {
            names.append(press(Qt::Key_Backtab));
        }
        return names;
    }

    /// What has the focus is seen to have it.
    void inspect(QQuickItem* focused)
    {
        if (focused->inherits("Pressable")) {
            inspectRing(focused);
        }
        const auto* const pane = ScreenReader::paneAround(focused->parentItem());
        if (!pane) {
            return;
        }
        const auto seen = ScreenReader::place(pane).intersected(ScreenReader::place(focused));
        const auto due = std::min(pane->height(), focused->height());
        if (seen.height() < due) {
            m_faults.append(u"not in sight: "_qs + ScreenReader::name(focused));
        }
    }

    void inspectRing(QQuickItem* control)
    {
        const auto children = control->childItems();
        const auto ring = std::ranges::find_if(children, [](const QQuickItem* child) {
            return child->metaObject()->indexOfProperty("controlRadius") >= 0 && child->isVisible();
        });
        if (ring == children.cend()) {
            m_faults.append(u"no ring: "_qs + ScreenReader::name(control));
        } else if (auto* const pane = ScreenReader::paneAround(control->parentItem())) {
            inspectTexts(pane, control, ScreenReader::place(*ring));
        }
    }

    /// Where a text shows: above and below its letters a line has room.
    static QRectF lettersOf(const QQuickItem* text)
    {
        constexpr qreal room = 3;
        auto place = ScreenReader::place(text);
        place.setWidth(text->property("contentWidth").toReal());
        return place.adjusted(0, room, 0, -room);
    }

    /// The ring stands on no text but its control's own.
    void inspectTexts(QQuickItem* item, QQuickItem* control, const QRectF& ring)
    {
        if (!item->isVisible() || item == control) {
            return;
        }
        if (item->inherits("QQuickText") && lettersOf(item).intersects(ring)) {
            m_faults.append(u"the ring of “%1” stands on “%2”"_qs.arg(
                ScreenReader::name(control), item->property("text").toString()));
        }
        const auto children = item->childItems();
        for (auto* const child : children) {
            inspectTexts(child, control, ring);
        }
    }

    /// The open sheet, or the whole window.
    static QQuickItem* topmost(const WorkbenchWindow& window)
    {
        auto* const sheet = ScreenReader::findIf(window.content(), [](QQuickItem* item) {
            return ScreenReader::role(item) == QAccessible::Dialog ||
                   (ScreenReader::role(item) == QAccessible::AlertMessage &&
                    ScreenReader::name(item) == u"Corvanite 没有改动原数据");
        });
        return sheet ? sheet : window.content();
    }

    static void collectUnreached(QQuickItem* item, const QList<QQuickItem*>& reached,
                                 QStringList& unreached)
    {
        if (!item->isVisible()) {
            return;
        }
        const auto role = ScreenReader::role(item);
        if (isForUse(item) && item->isEnabled() && role != QAccessible::NoRole &&
            !isOneOfARow(item) && !reached.contains(item)) {
            unreached.append(ScreenReader::name(item));
        }
        const auto children = item->childItems();
        for (auto* const child : children) {
            collectUnreached(child, reached, unreached);
        }
    }

    QStringList m_faults;
};

TEST_SUBJECT(KeyboardTest)
#include "KeyboardTest.moc"
