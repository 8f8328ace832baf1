// SPDX-License-Identifier: Apache-2.0

#include "WindowActivation.h"

#include <QWindow>

void WindowActivation::bringUp(QWindow& window, const QByteArray& token)
{
    // Where Qt looks for the token of the next request, and takes it away.
    if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token);
    }
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.raise();
    window.requestActivate();
}
