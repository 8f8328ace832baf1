// SPDX-License-Identifier: Apache-2.0

#include "RowReach.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>
#include <QWindow>
#include <QtTest/qtest_gui.h>

class RowReachTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfATabKeyOnceAndWhereItGoes_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifier>("modifier");
        QTest::addColumn<QVariantList>("told");

        QTest::newRow("Tab") << Qt::Key_Tab << Qt::NoModifier << QVariantList{true};
        QTest::newRow("Backtab") << Qt::Key_Backtab << Qt::ShiftModifier << QVariantList{false};
        QTest::newRow("Shift and Tab") << Qt::Key_Tab << Qt::ShiftModifier << QVariantList{false};
        QTest::newRow("a letter") << Qt::Key_A << Qt::NoModifier << QVariantList{};
        QTest::newRow("a page key") << Qt::Key_PageDown << Qt::NoModifier << QVariantList{};
    }

    void tellsOfATabKeyOnceAndWhereItGoes()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const Qt::KeyboardModifier, modifier);
        QFETCH(const QVariantList, told);
        const RowReach reach;
        QSignalSpy spy(&reach, &RowReach::tabPressed);
        QWindow window;
        QTest::keyClick(&window, key, modifier);
        QVariantList heard;
        for (const auto& arguments : std::as_const(spy)) {
            heard.append(arguments.constFirst());
        }
        QCOMPARE(heard, told);
    }
};

TEST_SUBJECT(RowReachTest)
#include "RowReachTest.moc"
