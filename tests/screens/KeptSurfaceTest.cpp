// SPDX-License-Identifier: Apache-2.0

#include "Browser.h"
#include "ScreenListener.h"
#include "ScreenTour.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QTest>

/// The kept items under the reader's hands.
class KeptSurfaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_qs)); }

    void cleanup() { m_visit.reset(); }

    void anEmptyListLeadsBackToToday()
    {
        show({});
        window().press(u"回到今天"_qs);
        QCOMPARE(model().surface(), InformationModel::Surface::Today);
    }

    void onlyAnOriginalThatCanBeOpenedHasALink()
    {
        show({u"d"_qs});
        QVERIFY(window().find(u"看变化"_qs, QAccessible::Button));
        QVERIFY(!window().find(u"看原文"_qs, QAccessible::Link));

        model().toggleKeep(u"a"_qs);
        const Browser browser;
        window().press(u"看原文"_qs, QAccessible::Link);
        QCOMPARE(browser.opened, QList{QUrl(u"https://origin.example/a"_qs)});
    }

    void theSearchFollowsTheTyping()
    {
        show({u"a"_qs});
        window().find(u"搜索已收下"_qs, QAccessible::EditableText)->forceActiveFocus();

        window().type("xyz");
        QCOMPARE(model().search(), u"xyz"_qs);
        QVERIFY(window().awaited(u"没有匹配的内容"_qs, QAccessible::Heading));

        window().pressKey(Qt::Key_Escape);
        QCOMPARE(model().search(), QString());
        QVERIFY(window().awaited(u"Title of a"_qs, QAccessible::ListItem));
    }

    void aSearchWithoutAMatchIsReadOut_data()
    {
        QTest::addColumn<QStringList>("keptIds");

        QTest::newRow("among what is kept") << QStringList{u"a"_qs};
        QTest::newRow("where nothing is kept") << QStringList();
    }

    void aSearchWithoutAMatchIsReadOut()
    {
        QFETCH(const QStringList, keptIds);
        show(keptIds);
        ScreenListener listener(window().content());
        window().find(u"搜索已收下"_qs, QAccessible::EditableText)->forceActiveFocus();

        for (int i = 0; i < 2; ++i) {
            window().type("xyz");
            QCOMPARE(listener.announced(), QStringList(u"没有匹配的内容"_qs));
            window().pressKey(Qt::Key_Escape);
            QCOMPARE(listener.announced(), QStringList());
        }
    }

    void removingGivesTheFocusToTheNextRow()
    {
        show({u"a"_qs}, {u"一"_qs});

        removeByKey();
        QCOMPARE(model().keptItemCount(), 1);
        QTRY_VERIFY(window().hasFocus(u"一"_qs, QAccessible::ListItem));

        removeByKey();
        QCOMPARE(model().keptItemCount(), 0);
        QTRY_VERIFY(window().hasFocus(u"搜索已收下"_qs, QAccessible::EditableText));
    }

    // A place was told among the rows that happened to be made.
    void inALongListNoRowTellsAPlace()
    {
        QStringList handedIn;
        for (int i = 1; i < 100; ++i) {
            handedIn.append(QString::number(i));
        }
        show({u"a"_qs}, handedIn);
        QVERIFY(window().find(u"Title of a"_qs, QAccessible::ListItem));

        model().toggleKeep(u"b"_qs);
        window().settle();
        QVERIFY(window().find(u"Title of a"_qs, QAccessible::Section));
        QVERIFY(!window().find(u"Title of a"_qs, QAccessible::ListItem));
    }

    // A row that nobody went to by key had the ring.
    void removingByPointerGivesNoRowTheRing()
    {
        show({u"a"_qs}, {u"一"_qs});
        ScreenReader::click(window().awaited(u"移除"_qs, QAccessible::Button));
        window().settle();
        QCOMPARE(model().keptItemCount(), 1);
        auto* const row = window().awaited(u"一"_qs, QAccessible::ListItem);
        QVERIFY(!row->property("visualFocus").toBool());
        QVERIFY(ScreenReader::isWithin(window().find(u"已收下"_qs, QAccessible::LayeredPane),
                                       window().window()->activeFocusItem()));
    }

    // The search had no ring any more.
    void theSearchHasItsRingAgainWhenTheReaderComesBack()
    {
        show({});
        window().pressKey(Qt::Key_F, Qt::ControlModifier);
        auto* const search = window().find(u"搜索已收下"_qs, QAccessible::EditableText);
        QVERIFY(search->property("visualFocus").toBool());
        window().turnAway([search] { QVERIFY(!search->property("visualFocus").toBool()); });
        QVERIFY(search->property("visualFocus").toBool());
    }

    void theRowsFollowASync()
    {
        show({u"a"_qs});
        m_visit->sample().site->answers.insert(
            SiteClient::packPath,
            SiteReply{.body = SiteDocuments::pack(u"2026-09-03T00:00:00.000Z"_qs, {u"a"_qs}),
                      .status = 200});
        const auto status = [this] {
            auto* const row = window().find(u"Title of a"_qs, QAccessible::ListItem);
            return row ? ScreenReader::description(row) : QString();
        };
        QVERIFY(status().contains(u"Source of a"_qs));
        model().refreshPackFromSite();
        QTRY_VERIFY(!status().contains(u"Source of a"_qs));
    }

    void theKeysWalkTheRows()
    {
        show({u"a"_qs}, {u"一"_qs, u"二"_qs});
        window()
            .awaited(u"Title of a"_qs, QAccessible::ListItem)
            ->forceActiveFocus(Qt::TabFocusReason);

        for (const auto& [key, name] :
             {std::pair(Qt::Key_Down, u"一"_qs), std::pair(Qt::Key_End, u"二"_qs),
              std::pair(Qt::Key_Up, u"一"_qs), std::pair(Qt::Key_Home, u"Title of a"_qs)}) {
            window().pressKey(key);
            QVERIFY2(window().hasFocus(name, QAccessible::ListItem), qPrintable(name));
        }
    }

private:
    void removeByKey()
    {
        window().awaited(u"移除"_qs, QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
        window().pressKey(Qt::Key_Return);
    }

    void show(const QStringList& keptIds, const QStringList& handedIn = {})
    {
        m_visit.emplace(ScreenTour::Stop{.name = {}, .act = [&](InformationModel& model) {
                                             for (const auto& id : keptIds) {
                                                 model.toggleKeep(id);
                                             }
                                             for (const auto& text : handedIn) {
                                                 model.addSource(text);
                                             }
                                             model.dismissReceipt();
                                             model.setSurface(InformationModel::Surface::Kept);
                                         }});
    }

    WorkbenchWindow& window() { return m_visit->window(); }
    InformationModel& model() { return m_visit->model(); }

    std::optional<ScreenTour::Visit> m_visit;
};

TEST_SUBJECT(KeptSurfaceTest)
#include "KeptSurfaceTest.moc"
