// SPDX-License-Identifier: Apache-2.0

#include "RowReach.h"
#include "Subject.h"

#include <QTest>
#include <QWindow>
#include <QtTest/qtest_gui.h>

class RowReachTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isShortAtFirst()
    {
        const RowReach reach;
        QVERIFY(!reach.far());
    }

    void isFarWhileAScreenReaderIsThere()
    {
        RowReach reach;
        reach.setReadAloud(true);
        QVERIFY(reach.far());
        reach.setReadAloud(false);
        QVERIFY(!reach.far());
    }

    void isFarFromTheFirstTab_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("far");

        QTest::newRow("Tab") << Qt::Key_Tab << true;
        QTest::newRow("Backtab") << Qt::Key_Backtab << true;
        QTest::newRow("a letter") << Qt::Key_A << false;
        QTest::newRow("a page key") << Qt::Key_PageDown << false;
    }

    void isFarFromTheFirstTab()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const bool, far);
        const RowReach reach;
        QWindow window;
        QTest::keyClick(&window, key);
        QCOMPARE(reach.far(), far);
        QTest::keyClick(&window, Qt::Key_A);
        QCOMPARE(reach.far(), far);
    }
};

TEST_SUBJECT(RowReachTest)
#include "RowReachTest.moc"
