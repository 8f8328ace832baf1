// SPDX-License-Identifier: Apache-2.0

#include "WindowActivation.h"
#include "Subject.h"

#include <QTest>
#include <QWindow>

class WindowActivationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsItWas_data()
    {
        QTest::addColumn<Qt::WindowStates>("before");
        QTest::addColumn<Qt::WindowStates>("after");

        const Qt::WindowStates minimized = Qt::WindowMinimized;
        const Qt::WindowStates maximized = Qt::WindowMaximized;
        QTest::newRow("shown") << Qt::WindowStates() << Qt::WindowStates();
        QTest::newRow("minimised") << minimized << Qt::WindowStates();
        QTest::newRow("maximised") << maximized << maximized;
        QTest::newRow("minimised while maximised") << (minimized | maximized) << maximized;
    }

    void comesBackAsItWas()
    {
        QFETCH(const Qt::WindowStates, before);
        QWindow window;
        window.setWindowStates(before);
        window.setVisible(true);
        WindowActivation::bringUp(window);
        QTEST(window.windowStates(), "after");
        QTRY_VERIFY(window.isActive());
    }

    // The platform takes it from there at the next request.
    void theTokenIsLaidReady()
    {
        QWindow window;
        WindowActivation::bringUp(window, "token");
        QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), QByteArray("token"));

        qunsetenv("XDG_ACTIVATION_TOKEN");
        WindowActivation::bringUp(window);
        QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    }

    void comesBeforeTheOthers()
    {
        QWindow screen;
        QWindow window(&screen);
        QWindow other(&screen);
        QCOMPARE(screen.children().last(), &other);

        WindowActivation::bringUp(window);

        QCOMPARE(screen.children().last(), &window);
    }
};

TEST_SUBJECT(WindowActivationTest)
#include "WindowActivationTest.moc"
