// SPDX-License-Identifier: Apache-2.0

#include "DrawingDelay.h"
#include "Subject.h"

#include <QTest>
#include <QWindow>

namespace {

class CountingWindow : public QWindow
{
public:
    int drawings = 0;

protected:
    bool event(QEvent* event) override
    {
        drawings += int(event->type() == QEvent::UpdateRequest);
        return QWindow::event(event);
    }
};

} // namespace

class DrawingDelayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeIsDrawnWithTheNextEvents()
    {
        DrawingDelay::switchOff();
        CountingWindow window;
        window.create();
        QCoreApplication::processEvents();

        window.requestUpdate();
        QCOMPARE(window.drawings, 0);
        QCoreApplication::processEvents();
        QCOMPARE(window.drawings, 1);

        window.requestUpdate();
        window.requestUpdate();
        QCoreApplication::processEvents();
        QCOMPARE(window.drawings, 2);
        QCoreApplication::processEvents();
        QCOMPARE(window.drawings, 2);
    }
};

TEST_SUBJECT(DrawingDelayTest)
#include "DrawingDelayTest.moc"
