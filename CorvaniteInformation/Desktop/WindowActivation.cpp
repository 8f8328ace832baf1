#include "WindowActivation.h"

#include <QWindow>

void WindowActivation::bringUp(QWindow& window)
{
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.raise();
    window.requestActivate();
}
