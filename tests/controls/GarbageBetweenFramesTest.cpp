// SPDX-License-Identifier: Apache-2.0

#include "GarbageBetweenFrames.h"
#include "Subject.h"

#include <QPointer>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int mostFrames = 100;

void drawFrame(QQuickWindow& window)
{
    const QSignalSpy drawn(&window, &QQuickWindow::frameSwapped);
    window.update();
    QTRY_COMPARE(drawn.count(), 1);
}

} // namespace

class GarbageBetweenFramesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatNobodyUsesAnyMoreGoesAfterSomeFrames()
    {
        QQmlEngine engine;
        QQuickWindow window;
        GarbageBetweenFrames::collect(window, engine);
        window.show();
        QTRY_VERIFY(window.isExposed());

        QPointer<QObject> garbage(new QObject);
        QPointer<QObject> used(new QObject);
        engine.newQObject(garbage);
        const QJSValue use = engine.newQObject(used);

        drawFrame(window);
        QVERIFY(garbage);
        for (int frame = 0; garbage && frame < mostFrames; ++frame) {
            drawFrame(window);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        QVERIFY(!garbage);
        QVERIFY(used);
    }

    void notWhileAFrameIsEnded()
    {
        QQmlEngine engine;
        QQuickWindow window;
        GarbageBetweenFrames::collect(window, engine);
        QPointer<QObject> garbage(new QObject);
        engine.newQObject(garbage);

        for (int frame = 0; frame < mostFrames; ++frame) {
            Q_EMIT window.frameSwapped();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(garbage);

        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!garbage);
    }
};

TEST_SUBJECT(GarbageBetweenFramesTest)
#include "GarbageBetweenFramesTest.moc"
