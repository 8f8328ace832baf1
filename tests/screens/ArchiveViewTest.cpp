// SPDX-License-Identifier: Apache-2.0

#include "ScreenTour.h"
#include "Subject.h"

#include <QTest>

/// The archive under the reader's hands, and the ways between it, the weekly digest and today.
class ArchiveViewTest : public QObject
{
    Q_OBJECT

    using Surface = InformationModel::Surface;

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_qs)); }

    void cleanup() { m_visit.reset(); }

    void theWeeklyDigestLeadsToADay()
    {
        show({.name = {}, .act = ScreenTour::goTo(Surface::Weekly)});
        window().press(u"查看9月1日 星期二的完整精选"_qs, QAccessible::Link);
        QCOMPARE(model().surface(), Surface::Archive);
        QCOMPARE(model().selectedArchiveDay(), u"2026-09-01"_qs);
    }

    void theIndexLeadsToTheWeeklyDigest_data()
    {
        QTest::addColumn<QAccessible::Role>("role");
        QTest::newRow("切到周报精选") << QAccessible::Button;
        QTest::newRow("按周折叠的视角见周报精选 →") << QAccessible::Link;
    }

    void theIndexLeadsToTheWeeklyDigest()
    {
        QFETCH(const QAccessible::Role, role);
        showIndex();
        window().press(QString::fromUtf8(QTest::currentDataTag()), role);
        QCOMPARE(model().surface(), Surface::Weekly);
    }

    void aDayLeadsToItsNeighbours()
    {
        showIndex();
        window().press(u"查看9月2日的完整精选"_qs);
        window().press(u"前一天 · 9月1日"_qs);
        QCOMPARE(model().selectedArchiveDay(), u"2026-09-01"_qs);
        window().press(u"后一天 · 9月2日"_qs);
        QCOMPARE(model().selectedArchiveDay(), u"2026-09-02"_qs);
    }

    void aDayStaysOpenWhileTheReaderIsElsewhere()
    {
        showIndex();
        window().press(u"查看9月1日的完整精选"_qs);
        window().press(u"回今日工作台"_qs);
        QCOMPARE(model().surface(), Surface::Today);
        QCOMPARE(model().selectedArchiveDay(), u"2026-09-01"_qs);
    }

    void aDayLeadsBackToTheIndex()
    {
        showIndex();
        window().press(u"查看9月1日的完整精选"_qs);
        window().press(u"回往期索引"_qs);
        QVERIFY(!model().selectedArchiveDay());
        QVERIFY(window().awaited(u"查看9月1日的完整精选"_qs, QAccessible::Button));
    }

    void altLeftLeadsBackToTheDayInTheIndex()
    {
        showIndex();
        focusDay(u"9月1日"_qs);
        window().pressKey(Qt::Key_Return);
        QCOMPARE(model().selectedArchiveDay(), u"2026-09-01"_qs);

        window().pressKey(Qt::Key_Left, Qt::AltModifier);

        QVERIFY(!model().selectedArchiveDay());
        QVERIFY(hasFocus(u"9月1日"_qs));
    }

    // A day that nobody went to by key had the ring.
    void comingBackByPointerGivesNoDayTheRing()
    {
        showIndex();
        ScreenReader::click(window().awaited(entry(u"9月1日"_qs), QAccessible::Button));
        window().settle();
        ScreenReader::click(window().awaited(u"回往期索引"_qs, QAccessible::Button));
        window().settle();
        auto* const day = window().awaited(entry(u"9月1日"_qs), QAccessible::Button);
        QVERIFY(!day->property("visualFocus").toBool());
        QVERIFY(ScreenReader::isWithin(window().find(u"往期精选"_qs, QAccessible::List),
                                       window().window()->activeFocusItem()));
    }

    void aLongDayIsOneCard()
    {
        show({.name = {},
              .prepare =
                  [](SampleModel& sample) {
                      SelectionDay day{u"2026-09-02"_qs, {}, 40};
                      for (int i = 0; i < 30; ++i) {
                          const auto id = u"s%1"_qs.arg(i);
                          sample.signals.append(sampleSignal(id));
                          day.focusSignalIds.append(id);
                      }
                      sample.selectionDays = {{u"2026-09-01"_qs, {u"a"_qs}, 1}, day};
                  },
              .act = ScreenTour::goTo(Surface::Archive)});
        const auto* const index = window().find(u"往期精选"_qs, QAccessible::List);
        for (const auto& text : {u"9月2日"_qs, u"星期三"_qs, u"今天"_qs}) {
            QCOMPARE(countShown(index, text), 1);
        }

        auto* const first = window().awaited(u"Title of s11"_qs + trail, QAccessible::StaticText);
        auto* const next = window().awaited(u"Title of s12"_qs + trail, QAccessible::StaticText);
        QCOMPARE(ScreenReader::place(next).top(), ScreenReader::place(first).bottom() + 5);
    }

    void aLaneThatDoesNotFitBeginsItsOwnLineWithItsName()
    {
        show({.name = {},
              .prepare =
                  [](SampleModel& sample) {
                      sample.signals.first().title = u"长"_qs.repeated(36);
                      sample.selectionDays = {{u"2026-09-01"_qs, {u"a"_qs, u"d"_qs}, 2}};
                  },
              .act = ScreenTour::goTo(Surface::Archive)});
        auto* const full = window().awaited(u"长"_qs.repeated(36) + trail, QAccessible::StaticText);
        QCOMPARE(shownTexts(full), (QStringList{u"长"_qs.repeated(36), u"产品雷达"_qs}));
        auto* const fitting =
            window().awaited(u"Title of d · 开源增长"_qs, QAccessible::StaticText);
        QCOMPARE(shownTexts(fitting), (QStringList{u"Title of d"_qs, u" · "_qs, u"开源增长"_qs}));
    }

    void theKeysWalkALongIndex()
    {
        show({.name = {},
              .prepare =
                  [](SampleModel& sample) {
                      sample.selectionDays.clear();
                      for (int i = 0; i < 400; ++i) {
                          sample.selectionDays.append(
                              {QDate(2026, 9, 2).addDays(-i).toString(Qt::ISODate), {u"a"_qs}, i});
                      }
                  },
              .act = ScreenTour::goTo(Surface::Archive)});
        focusDay(u"9月2日"_qs);

        for (const auto& [key, day] :
             {std::pair(Qt::Key_End, u"7月30日"_qs), std::pair(Qt::Key_Up, u"7月31日"_qs),
              std::pair(Qt::Key_Home, u"9月2日"_qs)}) {
            window().pressKey(key);
            QVERIFY2(hasFocus(day), qPrintable(day));
        }
    }

private:
    void show(const ScreenTour::Stop& stop) { m_visit.emplace(stop); }
    void showIndex() { show({.name = {}, .act = ScreenTour::goTo(Surface::Archive)}); }

    WorkbenchWindow& window() { return m_visit->window(); }
    InformationModel& model() { return m_visit->model(); }

    const QString trail = u" · 产品雷达"_qs;

    static QStringList shownTexts(const QQuickItem* paragraph)
    {
        QStringList texts;
        for (const QQuickItem* text : paragraph->childItems()) {
            if (text->isVisible()) {
                texts.append(text->property("text").toString());
            }
        }
        return texts;
    }

    /// How many texts at or below the item show just that.
    static int countShown(const QQuickItem* item, const QString& text)
    {
        const bool shows = item->inherits("QQuickText") && item->isVisible() &&
                           item->property("text").toString() == text;
        int count = shows ? 1 : 0;
        const auto children = item->childItems();
        for (const auto* child : children) {
            count += countShown(child, text);
        }
        return count;
    }

    static QString entry(const QString& day) { return u"查看%1的完整精选"_qs.arg(day); }

    void focusDay(const QString& day)
    {
        window().awaited(entry(day), QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
    }

    bool hasFocus(const QString& day) { return window().hasFocus(entry(day), QAccessible::Button); }

    std::optional<ScreenTour::Visit> m_visit;
};

TEST_SUBJECT(ArchiveViewTest)
#include "ArchiveViewTest.moc"
