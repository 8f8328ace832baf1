// SPDX-License-Identifier: Apache-2.0

#include "Subject.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>

namespace {

constexpr auto page = R"(
    import QtQuick
    import CorvaniteInformation.Controls

    Item {
        Accessible.role: Accessible.Grouping

        Item {
            CountedItem {
                count: 5
                Accessible.role: Accessible.List

                component Row: Item {
                    property int position

                    Item {
                        Item {
                            Accessible.role: Accessible.ListItem
                            Accessible.name: position
                        }
                    }
                }

                Row { position: 3 }
                Row { position: 2 }
            }
        }
    }
)";

} // namespace

/// What a screen reader is told of rows of which some are made.
class CountedItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_engine.addImportPath(u":/qt/qml"_qs);
        QQmlComponent component(&m_engine);
        component.setData(page, {});
        m_page.reset(qobject_cast<QQuickItem*>(component.create()));
        QVERIFY2(m_page, qPrintable(component.errorString()));
        m_around = QAccessible::queryAccessibleInterface(m_page.get());
        m_list = m_around->child(0);
    }

    void isAListInWhatStandsAroundIt()
    {
        QCOMPARE(m_around->childCount(), 1);
        QCOMPARE(m_list->role(), QAccessible::List);
        QCOMPARE(m_list->parent(), m_around);
    }

    void hasEveryRow()
    {
        QCOMPARE(m_list->childCount(), 5);
        for (int i = 0; i < 5; ++i) {
            auto* const row = m_list->child(i);
            QVERIFY(row);
            QCOMPARE(row->role(), QAccessible::ListItem);
            QCOMPARE(row->parent(), m_list);
            QCOMPARE(m_list->indexOfChild(row), i);
            QCOMPARE(m_list->child(i), row);
        }
        QVERIFY(!m_list->child(-1));
        QVERIFY(!m_list->child(5));
    }

    void tellsOfARowThatIsNotMadeThatItIsOutOfSight()
    {
        QStringList names;
        QList<bool> outOfSight;
        for (int i = 0; i < 5; ++i) {
            names.append(m_list->child(i)->text(QAccessible::Name));
            outOfSight.append(!m_list->child(i)->object() && m_list->child(i)->state().offscreen);
        }
        QCOMPARE(names, (QStringList{{}, {}, u"2"_qs, u"3"_qs, {}}));
        QCOMPARE(outOfSight, (QList{true, true, false, false, true}));
    }

    void aRowThatIsNoneOfItsOwnHasNoPlace() { QCOMPARE(m_list->indexOfChild(m_around), -1); }

    void takesItsUnmadeRowsAlong()
    {
        const auto id = QAccessible::uniqueId(m_list->child(0));
        QVERIFY(QAccessible::accessibleInterface(id));
        m_page.reset();
        QVERIFY(!QAccessible::accessibleInterface(id));
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickItem> m_page;
    QAccessibleInterface* m_around = nullptr;
    QAccessibleInterface* m_list = nullptr;
};

TEST_SUBJECT(CountedItemTest)
#include "CountedItemTest.moc"
