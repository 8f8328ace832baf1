// SPDX-License-Identifier: Apache-2.0

#include "ScreenTour.h"
#include "Subject.h"

#include <QHash>
#include <QMap>
#include <QTest>

#include <utility>

namespace {

constexpr qreal tolerance = 0.5;
/// Chips, the switcher's segments and the window's own buttons are drawn lower than the rest.
qreal leastTargetHeight(QQuickItem* target)
{
    return ScreenReader::role(target) == QAccessible::Link ? 32 : 28;
}

bool isOfClass(const QQuickItem* item, const char* name)
{
    return item->inherits(name);
}

/// What the item scrolls with, or the sheet or window that it stands on: only what is on the same
/// layer can stand in each other's way.
const QQuickItem* layerOf(const QQuickItem* item)
{
    const auto* layer = item;
    while (layer->parentItem() && !isOfClass(layer->parentItem(), "QQuickFlickable") &&
           !isOfClass(layer, "QQuickPopupItem")) {
        layer = layer->parentItem();
    }
    return layer;
}

/// Two texts that make up one paragraph stand in each other's box on purpose.
bool isOneParagraph(QQuickItem* text, QQuickItem* other)
{
    auto* const parent = text->parentItem();
    if (parent == other || other->parentItem() == text) {
        return true;
    }
    return parent == other->parentItem() && ScreenReader::role(parent) == QAccessible::StaticText;
}

QString told(const QQuickItem* item)
{
    const auto rect = ScreenReader::place(item);
    return u"“%1” at %2, %3, %4 × %5"_qs.arg(item->property("text").toString().left(40))
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

/// Content that no screen was drawn for.
void stretch(SampleModel& sample)
{
    const QString longText = u"长得没有尽头的一句话，"_qs.repeated(30);
    const QString unbroken(300, u'x');

    auto wordy = sample.signals.first();
    wordy.id = u"wordy"_qs;
    wordy.followTarget.id = u"wordy"_qs;
    wordy.title = longText;
    wordy.source = longText;
    wordy.why = longText;
    wordy.caveat = longText;
    wordy.digest = longText;
    wordy.publishedAt = longText;
    wordy.updateSummary = longText;
    wordy.relatedSources = {{longText, u"https://one.example/"_qs},
                            {unbroken, u"https://two.example/"_qs}};
    wordy.timeline = {{longText, {}, longText, longText}, {unbroken, {}, unbroken, unbroken}};
    wordy.originalURL = u"https://x.com/"_qs;

    auto unbreakable = wordy;
    unbreakable.id = u"unbreakable"_qs;
    unbreakable.followTarget.id = u"unbreakable"_qs;
    unbreakable.lane = InformationLane::Workflow;
    unbreakable.title = unbroken;
    unbreakable.source = unbroken;
    unbreakable.why = unbroken;
    unbreakable.caveat = unbroken;

    auto nameless = sampleSignal(u"nameless"_qs);
    nameless.lane = InformationLane::PlatformShift;
    nameless.title = QString();
    nameless.source = QString();
    nameless.why = QString();
    nameless.caveat = QString();

    sample.signals = {wordy, unbreakable, nameless};
    for (int i = 0; i < 697; ++i) {
        sample.signals.append(sampleSignal(u"s%1"_qs.arg(i)));
    }
    sample.selectionDays.clear();
    for (int i = 0; i < 400; ++i) {
        sample.selectionDays.append({QDate(2026, 9, 2).addDays(-i).toString(Qt::ISODate),
                                     {u"wordy"_qs, u"unbreakable"_qs, u"nameless"_qs},
                                     700});
    }
}

void keepTheStretched(InformationModel& model)
{
    for (const auto& id : {u"wordy"_qs, u"unbreakable"_qs, u"nameless"_qs}) {
        model.toggleKeep(id);
        model.updateNote(id, u"一"_qs.repeated(10000));
    }
    for (int i = 0; i < 100; ++i) {
        model.addSource(u"%1%2"_qs.arg(i).arg(QString(490, i % 2 ? u'y' : u'字')));
    }
    model.dismissReceipt();
}

QList<ScreenTour::Stop> stretchedStops()
{
    using Surface = InformationModel::Surface;
    const auto on = [](Surface surface) {
        return [surface](InformationModel& model) {
            keepTheStretched(model);
            model.setSurface(surface);
        };
    };
    return {
        {.name = u"stretched today"_qs, .prepare = stretch, .act = on(Surface::Today)},
        {.name = u"stretched thread"_qs,
         .prepare = stretch,
         .act = on(Surface::Today),
         .open =
             [](const WorkbenchWindow& window) {
                 window.press(u"打开脉络："_qs + u"长得没有尽头的一句话，"_qs.repeated(30));
             }},
        {.name = u"stretched kept"_qs, .prepare = stretch, .act = on(Surface::Kept)},
        {.name = u"stretched weekly"_qs, .prepare = stretch, .act = on(Surface::Weekly)},
        {.name = u"stretched archive"_qs, .prepare = stretch, .act = on(Surface::Archive)},
        {.name = u"stretched day"_qs,
         .prepare = stretch,
         .act =
             [](InformationModel& model) {
                 keepTheStretched(model);
                 model.openArchiveDay(u"2026-09-01"_qs);
             }},
    };
}

} // namespace

/// At every size of the window nothing is cut off, elided without need, or in the way of anything.
class LayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_qs)); }

    void everyScreen_data()
    {
        QTest::addColumn<ScreenTour::Stop>("stop");
        QTest::addColumn<bool>("stretched");
        for (const auto& stop : ScreenTour::stops()) {
            QTest::newRow(qPrintable(stop.name)) << stop << false;
        }
        for (const auto& stop : stretchedStops()) {
            QTest::newRow(qPrintable(stop.name)) << stop << true;
        }
    }

    void everyScreen()
    {
        QFETCH(const ScreenTour::Stop, stop);
        QFETCH(const bool, stretched);
        ScreenTour::Visit visit(stop, {2560, 1440});
        for (const QSize size : {QSize(2560, 1440), QSize(720, 560), QSize(1040, 700),
                                 QSize(760, 900), QSize(980, 600), QSize(1440, 900),
                                 QSize(1108, 640), QSize(979, 560), QSize(1680, 1050)}) {
            visit.window().resize(size);
            // Rows that are made one by one have no place until it is their turn.
            const bool settled = QTest::qWaitFor([&] {
                inspectWindow(visit.window(), size, stretched);
                return m_faults.isEmpty();
            });
            QVERIFY2(settled, qPrintable(u"%1 × %2:\n%3"_qs.arg(size.width())
                                             .arg(size.height())
                                             .arg(m_faults.join(u'\n'))));
        }
    }

    // Its texts were first laid out for no width, a sign a line, and what stood below it moved when
    // they got theirs.
    void aRowIsMadeAsHighAsItStays_data()
    {
        QTest::addColumn<InformationModel::Surface>("surface");

        QTest::newRow("today") << InformationModel::Surface::Today;
        QTest::newRow("kept") << InformationModel::Surface::Kept;
        QTest::newRow("weekly") << InformationModel::Surface::Weekly;
        QTest::newRow("archive") << InformationModel::Surface::Archive;
    }

    void aRowIsMadeAsHighAsItStays()
    {
        QFETCH(const InformationModel::Surface, surface);
        const ScreenTour::Stop stop{.name = {}, .act = [surface](InformationModel& model) {
                                        model.toggleKeep(u"a"_qs);
                                        model.setSurface(surface);
                                    }};
        ScreenTour::Visit visit(stop, {1120, 780});
        QList<QQuickItem*> lists;
        collectLists(visit.window().content(), lists);
        QVERIFY(!lists.isEmpty());
        for (auto* const list : std::as_const(lists)) {
            const auto rows = list->property("model");
            list->setProperty("model", QVariant());
            list->setProperty("model", rows);
            QMetaObject::invokeMethod(list, "forceLayout");
            const auto made = rowHeights(list);
            visit.window().settle();
            QVERIFY(!made.isEmpty());
            QCOMPARE(made, rowHeights(list));
        }
    }

private:
    static void collectLists(QQuickItem* item, QList<QQuickItem*>& lists)
    {
        if (item->isVisible() && isOfClass(item, "QQuickListView")) {
            lists.append(item);
        }
        const auto children = item->childItems();
        for (auto* const child : children) {
            collectLists(child, lists);
        }
    }

    static QMap<int, qreal> rowHeights(const QQuickItem* list)
    {
        QMap<int, qreal> heights;
        collectHeights(list->property("contentItem").value<QQuickItem*>(), heights);
        return heights;
    }

    static void collectHeights(const QQuickItem* item, QMap<int, qreal>& heights)
    {
        const auto children = item->childItems();
        for (const auto* const child : children) {
            if (const auto index = child->property("index"); index.isValid()) {
                heights.insert(index.toInt(), child->height());
            } else {
                collectHeights(child, heights);
            }
        }
    }

    void inspectWindow(const WorkbenchWindow& window, QSize size, bool stretched)
    {
        m_faults.clear();
        m_texts.clear();
        inspect(window.content(), size, stretched);
        findOverlaps();
    }

    void inspect(QQuickItem* item, QSize window, bool stretched)
    {
        if (!item->isVisible() || item->opacity() == 0) {
            return;
        }
        if (isOfClass(item, "Pressable") && item->height() < leastTargetHeight(item)) {
            m_faults.append(u"hard to hit: "_qs + told(item));
        }
        if (isOfClass(item, "QQuickPaintedItem") && !standsOnWholePixels(item)) {
            m_faults.append(u"between pixels: "_qs + told(item->parentItem()));
        }
        if (isOfClass(item, "QQuickFlickable") && !isOfClass(item, "QQuickTextEdit")) {
            inspectScroll(item);
        }
        if (isOfClass(item, "QQuickText") && !item->property("text").toString().isEmpty()) {
            inspectText(item, window, stretched);
        }
        const auto children = item->childItems();
        for (auto* const child : children) {
            inspect(child, window, stretched);
        }
    }

    /// Else it would be blurred.
    static bool standsOnWholePixels(const QQuickItem* item)
    {
        const QPointF place = item->mapToScene(QPointF());
        return isWhole(place.x()) && isWhole(place.y());
    }

    static bool isWhole(qreal length) { return std::abs(length - std::round(length)) < 0.01; }

    void inspectScroll(const QQuickItem* list)
    {
        const auto top = list->property("originY").toReal() - list->property("topMargin").toReal();
        if (std::abs(list->property("contentY").toReal() - top) > tolerance) {
            m_faults.append(u"scrolled by itself: "_qs + told(list));
        }
    }

    void inspectText(QQuickItem* text, QSize window, bool stretched)
    {
        const auto rect = ScreenReader::place(text);
        if (rect.left() < -tolerance || rect.right() > window.width() + tolerance) {
            m_faults.append(u"outside the window: "_qs + told(text));
        }
        if (text->property("contentWidth").toReal() > text->width() + tolerance ||
            text->implicitHeight() > text->height() + tolerance) {
            m_faults.append(u"larger than its place: "_qs + told(text));
        }
        if (text->property("truncated").toBool() && !stretched) {
            m_faults.append(u"elided without need: "_qs + told(text));
        }
        if (!ScreenReader::paneAround(text) &&
            (rect.top() < -tolerance || rect.bottom() > window.height() + tolerance)) {
            m_faults.append(u"out of reach: "_qs + told(text));
        }
        m_texts[layerOf(text)].append(text);
    }

    void findOverlaps()
    {
        for (const auto& texts : std::as_const(m_texts)) {
            for (qsizetype i = 0; i < texts.size(); ++i) {
                for (qsizetype k = 0; k < i; ++k) {
                    const auto common = ScreenReader::place(texts.at(i))
                                            .intersected(ScreenReader::place(texts.at(k)));
                    if (common.width() > tolerance && common.height() > tolerance &&
                        !isOneParagraph(texts.at(i), texts.at(k))) {
                        m_faults.append(told(texts.at(i)) + u" overlaps "_qs + told(texts.at(k)));
                    }
                }
            }
        }
    }

    QStringList m_faults;
    QHash<const QQuickItem*, QList<QQuickItem*>> m_texts;
};

TEST_SUBJECT(LayoutTest)
#include "LayoutTest.moc"
