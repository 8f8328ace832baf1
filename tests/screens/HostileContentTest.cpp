// SPDX-License-Identifier: Apache-2.0

#include "HostileContent.h"

#include "Browser.h"
#include "InformationSeed.h"
#include "Subject.h"
#include "WorkbenchWindow.h"

#include <QNetworkAccessManager>
#include <QPointer>
#include <QQmlAbstractUrlInterceptor>
#include <QQmlNetworkAccessManagerFactory>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

using Surface = InformationModel::Surface;

constexpr qreal tolerance = 0.5;

/// So many items at most are made for one screen, whatever the pack holds. A list makes what stands
/// in it and up to 2400 pixels around it; the lowest rows that anything can have fill that with
/// less.
constexpr qsizetype mostItems = 9000;

/// Watches what the engine fetches.
class EngineWatch : public QQmlAbstractUrlInterceptor, public QQmlNetworkAccessManagerFactory
{
public:
    QUrl intercept(const QUrl& url, DataType type) override
    {
        m_resolved.insert(url);
        if (type != QmldirFile && !url.toString().startsWith(ownFiles)) {
            m_strangers.append(url.toString());
        }
        return url;
    }

    QNetworkAccessManager* create(QObject* parent) override
    {
        ++m_networkUses;
        return new QNetworkAccessManager(parent);
    }

    void watch(QQmlEngine& engine)
    {
        engine.addUrlInterceptor(this);
        engine.setNetworkAccessManagerFactory(this);
    }

    /// Everything that was asked for.
    const QSet<QUrl>& resolved() const { return m_resolved; }
    /// What is no file of the program. The toolkit's modules are asked for by their indexes only.
    const QStringList& strangers() const { return m_strangers; }
    int networkUses() const { return m_networkUses; }

private:
    static constexpr QLatin1StringView ownFiles{"qrc:/qt/qml/CorvaniteInformation/"};

    QSet<QUrl> m_resolved;
    QStringList m_strangers;
    int m_networkUses = 0;
};

struct Stop
{
    QString name;
    std::function<void(SampleModel&)> prepare = [](SampleModel&) {};
    std::function<void(InformationModel&)> act = [](InformationModel&) {};
    std::function<void(const WorkbenchWindow&, const InformationModel&)> open =
        [](const WorkbenchWindow&, const InformationModel&) {};
};

void forEach(QQuickItem* item, const std::function<void(QQuickItem*)>& visit)
{
    visit(item);
    const auto children = item->childItems();
    for (auto* const child : children) {
        forEach(child, visit);
    }
}

QList<QQuickItem*> itemsOf(const WorkbenchWindow& window)
{
    QList<QQuickItem*> items;
    forEach(window.content(), [&items](QQuickItem* item) { items.append(item); });
    return items;
}

/// A model and its window at one stop, under watch.
class Visit
{
public:
    Visit(const std::function<void(SampleModel&)>& fill, const Stop& stop, QSize size)
    {
        fill(m_sample);
        stop.prepare(m_sample);
        m_model = m_sample.make();
        stop.act(*m_model);
        m_model->dismissReceipt();
        m_window.emplace(*m_model, size, [this](QQmlEngine& engine) { m_watch.watch(engine); });
        m_window->settle();
        stop.open(*m_window, *m_model);
        m_window->settle();
    }

    WorkbenchWindow& window() { return *m_window; }
    InformationModel& model() { return *m_model; }

    /// Turns every list to where that part of its rows is above.
    void scrollTo(double part)
    {
        for (auto* const item : itemsOf(*m_window)) {
            if (item->inherits("QQuickListView") && item->isVisible()) {
                const int last = item->property("count").toInt() - 1;
                QMetaObject::invokeMethod(item, "positionViewAtIndex",
                                          Q_ARG(int, qRound(last * part)), Q_ARG(int, 0));
            }
        }
        m_window->settle();
    }

    const EngineWatch& watch() const { return m_watch; }

private:
    SampleModel m_sample;
    EngineWatch m_watch;
    std::unique_ptr<InformationModel> m_model;
    std::optional<WorkbenchWindow> m_window;
};

void fillWithTheSeed(SampleModel& sample)
{
    sample.signals = InformationSeed::signals();
    sample.retiredSignals = InformationSeed::retiredSignals();
    sample.selectionDays = InformationSeed::selectionHistory();
    sample.packAsOf = InformationSeed::asOf();
}

/// The named signal, or the first one of a pack that has none of that name.
QString idOf(const InformationModel& model, const QString& id)
{
    return model.signalById(id) ? id : model.visibleSignals().constFirst().id;
}

std::function<void(InformationModel&)> goTo(Surface surface)
{
    return [surface](InformationModel& model) { model.setSurface(surface); };
}

void keepMany(InformationModel& model)
{
    const auto signals = model.visibleSignals();
    for (const auto& signal : signals.first(qMin(signals.size(), qsizetype(80)))) {
        model.toggleKeep(signal.id);
    }
}

Stop keptThread(const QString& name, const QString& id)
{
    return {.name = name, .act = [id](InformationModel& model) {
                model.toggleKeep(idOf(model, id));
                model.openThread(idOf(model, id));
            }};
}

bool isDisclosure(QQuickItem* item)
{
    auto* const accessible = QAccessible::queryAccessibleInterface(item);
    return accessible && accessible->text(QAccessible::Name).startsWith(u"其余 "_qs);
}

QList<Stop> stops()
{
    return {
        {.name = u"today"_qs},
        // A pack stamped in whole seconds shows what was featured that day.
        {.name = u"today, everything featured"_qs,
         .prepare = [](SampleModel& sample) { sample.packAsOf = u"2026-09-01T01:00:00Z"_qs; }},
        {.name = u"today, a word without end"_qs,
         .act =
             [](InformationModel& model) { model.setActiveLane(InformationLane::FounderStory); }},
        {.name = u"today, unfolded"_qs,
         .open =
             [](const WorkbenchWindow& window, const InformationModel&) {
                 ScreenReader::press(ScreenReader::findIf(window.content(), isDisclosure));
             }},
        {.name = u"kept"_qs,
         .act =
             [](InformationModel& model) {
                 keepMany(model);
                 model.setSurface(Surface::Kept);
             }},
        {.name = u"weekly"_qs, .act = goTo(Surface::Weekly)},
        {.name = u"archive"_qs, .act = goTo(Surface::Archive)},
        {.name = u"archived day"_qs,
         .act =
             [](InformationModel& model) {
                 const auto& days = model.archiveDays();
                 model.openArchiveDay(std::ranges::max(days, {}, [](const SelectionDay& day) {
                                          return day.focusSignalIds.size();
                                      }).date);
             }},
        {.name = u"sources"_qs, .act = goTo(Surface::Sources)},
        keptThread(u"endless thread"_qs, u"endless"_qs),
        keptThread(u"thread of a word without end"_qs, u"wordy"_qs),
        keptThread(u"thread of markup"_qs, u"<b>1</b>"_qs),
    };
}

} // namespace

/// Whatever a pack holds is text on the screens: never markup, never an address that something
/// fetches or opens by itself, never more than the window can bear.
class HostileContentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_qs)); }

    void everyScreen_data()
    {
        QTest::addColumn<Stop>("stop");
        QTest::addColumn<QSize>("size");
        for (const auto& stop : stops()) {
            QTest::newRow(qPrintable(stop.name)) << stop << QSize(1120, 780);
            QTest::newRow(qPrintable(stop.name + u", narrow"_qs)) << stop << QSize(720, 560);
        }
    }

    void everyScreen()
    {
        QFETCH(const Stop, stop);
        QFETCH(const QSize, size);
        Visit ordinary(fillWithTheSeed, stop, size);
        Visit visit(HostileContent::fill, stop, size);
        qsizetype most = 0;
        for (const double part : {0.0, 0.5, 1.0}) {
            visit.scrollTo(part);
            most = std::max(most, itemsOf(visit.window()).size());
            QCOMPARE(faultsOf(visit.window()).join(u'\n'), QString());
        }
        qInfo("%lld items with the compiled-in edition, %lld with this one, %lld at most",
              itemsOf(ordinary.window()).size(), most, mostItems);
        QVERIFY(most <= mostItems);
        QCOMPARE(visit.watch().networkUses(), 0);
        QCOMPARE(visit.watch().strangers().join(u'\n'), QString());
        QCOMPARE(visit.watch().resolved(), ordinary.watch().resolved());
    }

    void everyTextIsShownAsItStands_data()
    {
        QTest::addColumn<QString>("text");
        for (int number = 0; const auto& text : HostileContent::texts()) {
            QTest::addRow("text %d", number++) << text;
        }
    }

    void everyTextIsShownAsItStands()
    {
        QFETCH(const QString, text);
        const auto fill = [&text](SampleModel& sample) {
            sample.signals = {HostileContent::saying(u"a"_qs, text)};
            sample.signals.first().kind = InformationSignalKind::Update;
            sample.selectionDays = {{u"2026-09-01"_qs, {u"a"_qs, u"gone: "_qs + text}, 1},
                                    {u"on "_qs + text, {}, 1}};
        };
        const auto unfold = [](const WorkbenchWindow& window, const InformationModel&) {
            window.press(u"看变化"_qs);
        };
        const QString line = text + u" · "_qs + text;

        verifyShown(fill, {.name = {}, .act = goTo(Surface::Today), .open = unfold},
                    {text, line, text + u"核验"_qs});
        verifyShown(fill, keptThread({}, u"a"_qs), {text});
        verifyShown(fill,
                    {.name = {},
                     .act =
                         [](InformationModel& model) {
                             model.toggleKeep(u"a"_qs);
                             model.setSurface(Surface::Kept);
                         }},
                    {text, text + u" · 后续实质变化会续到这里"_qs});
        verifyShown(fill, {.name = {}, .act = goTo(Surface::Weekly)},
                    {text, u"已归档条目（gone: %1）"_qs.arg(text)});
        verifyShown(fill, {.name = {}, .act = goTo(Surface::Archive)}, {text, u"on "_qs + text});
        verifyShown(
            fill,
            {.name = {},
             .act = [](InformationModel& model) { model.openArchiveDay(u"2026-09-01"_qs); }},
            {text, u"产品雷达 · "_qs + text, u"看原文："_qs + text});
    }

    void nothingButPagesOfTheWebIsOpened_data()
    {
        QTest::addColumn<Stop>("stop");
        QTest::newRow("today") << stopNamed(u"today, unfolded"_qs);
        for (const auto& name : {u"kept"_qs, u"archived day"_qs, u"weekly"_qs, u"archive"_qs,
                                 u"sources"_qs, u"endless thread"_qs}) {
            QTest::newRow(qPrintable(name)) << stopNamed(name);
        }
    }

    void nothingButPagesOfTheWebIsOpened()
    {
        QFETCH(const Stop, stop);
        const Browser browser(HostileContent::schemes());
        Visit visit(fillWithAddresses, stop, {1120, 1200});
        for (const double part : {0.0, 0.15, 0.3, 0.45, 0.6, 0.75, 0.9, 1.0}) {
            visit.scrollTo(part);
            pressEvery(visit.window(), {QAccessible::Link});
        }
        pressEvery(visit.window(), {QAccessible::Link, QAccessible::Button});
        verifyHarmless(browser);
    }

    void noThreadOpensAnythingButPagesOfTheWeb()
    {
        const Browser browser(HostileContent::schemes());
        Visit visit(fillWithAddresses, {.name = {}}, {1120, 780});
        // A copy: what is opened is seen, and the model then works its list out anew.
        const auto signals = visit.model().visibleSignals();
        for (const auto& signal : signals) {
            visit.model().openThread(signal.id);
            visit.window().settle();
            QVERIFY(visit.window().find(signal.title, QAccessible::Dialog));
            pressEvery(visit.window(), {QAccessible::Link});
            if (auto* const original = visit.window().find(u"看最新原文"_qs, QAccessible::Button)) {
                ScreenReader::press(original);
            }
            visit.window().pressKey(Qt::Key_Escape);
        }
        verifyHarmless(browser);
        QVERIFY(browser.opened.contains(QUrl(u"https://open.example/original"_qs)));
        QVERIFY(browser.opened.contains(QUrl(u"http://open.example/alternate"_qs)));
    }

private:
    using Fill = std::function<void(SampleModel&)>;

    static Stop stopNamed(const QString& name)
    {
        const auto all = stops();
        return *std::ranges::find(all, name, &Stop::name);
    }

    /// Addresses of every kind; two may be opened.
    static void fillWithAddresses(SampleModel& sample)
    {
        sample.signals = HostileContent::addressSignals();
        sample.signals.append(
            HostileContent::leadingTo(u"open"_qs, u"https://open.example/original"_qs, false));
        sample.signals.append(HostileContent::leadingTo(u"blocked open"_qs,
                                                        u"http://open.example/alternate"_qs, true));
        sample.signals.append(HostileContent::endless());
        sample.selectionDays = {{u"2026-09-01"_qs, idsOf(sample.signals), 1}};
    }

    static void verifyShown(const Fill& fill, const Stop& stop, const QStringList& texts)
    {
        Visit visit(fill, stop, {1120, 1200});
        QStringList shown;
        for (const auto* const item : itemsOf(visit.window())) {
            if (item->inherits("QQuickText") && item->isVisible()) {
                shown.append(item->property("text").toString());
            }
        }
        for (const auto& text : texts) {
            QVERIFY2(shown.contains(text), qPrintable(text));
        }
        QCOMPARE(faultsOf(visit.window()).join(u'\n'), QString());
        QCOMPARE(visit.watch().networkUses(), 0);
        QCOMPARE(visit.watch().strangers().join(u'\n'), QString());
    }

    /// Presses all that shows in one of the roles, but the buttons that take the window away.
    static void pressEvery(const WorkbenchWindow& window, const QList<QAccessible::Role>& roles)
    {
        QList<QPointer<QQuickItem>> found;
        for (auto* const item : itemsOf(window)) {
            auto* const accessible = QAccessible::queryAccessibleInterface(item);
            if (item->inherits("Pressable") && roles.contains(accessible->role()) &&
                !item->inherits("IconButton")) {
                found.append(item);
            }
        }
        for (const auto& item : found) {
            if (item && item->isVisible()) {
                ScreenReader::press(item);
            }
        }
        window.settle();
    }

    static void verifyHarmless(const Browser& browser)
    {
        QVERIFY(!browser.opened.isEmpty());
        for (const auto& url : browser.opened) {
            const bool ofTheWeb = url.scheme() == u"https"_qs || url.scheme() == u"http"_qs;
            QVERIFY2(ofTheWeb && url.userInfo().isEmpty() && !url.host().isEmpty(),
                     qPrintable(url.toString()));
        }
    }

    static QStringList faultsOf(const WorkbenchWindow& window)
    {
        QStringList faults;
        for (auto* const item : itemsOf(window)) {
            const bool isText = item->inherits("QQuickText");
            const auto format = item->property("textFormat");
            if (format.isValid() && format.toInt() != Qt::PlainText) {
                faults.append(u"may show markup: "_qs + told(item));
            }
            if (!isText || !item->isVisible()) {
                continue;
            }
            const auto rect = item->mapRectToScene({0, 0, item->width(), item->height()});
            if (rect.left() < -tolerance || rect.right() > window.window()->width() + tolerance) {
                faults.append(u"outside the window: "_qs + told(item));
            }
            if (item->property("contentWidth").toReal() > item->width() + tolerance) {
                faults.append(u"wider than its place: "_qs + told(item));
            }
        }
        return faults;
    }

    static QString told(const QQuickItem* item)
    {
        const auto rect = item->mapRectToScene({0, 0, item->width(), item->height()});
        return u"“%1” at %2, %3 × %4"_qs.arg(item->property("text").toString().left(40))
            .arg(rect.x())
            .arg(rect.width())
            .arg(rect.height());
    }
};

TEST_SUBJECT(HostileContentTest)
#include "HostileContentTest.moc"
