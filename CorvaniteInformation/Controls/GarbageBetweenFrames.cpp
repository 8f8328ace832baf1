// SPDX-License-Identifier: Apache-2.0

#include "GarbageBetweenFrames.h"

#include <QQmlEngine>
#include <QQuickWindow>

namespace {

/// So few that the engine is not before us, however fast the reader scrolls. Each time takes 3 to
/// 5 ms.
constexpr int framesOfGarbage = 40;

} // namespace

void GarbageBetweenFrames::collect(QQuickWindow& window, QQmlEngine& engine)
{
    QObject::connect(&window, &QQuickWindow::frameSwapped, &engine,
                     [&engine, frames = 0]() mutable {
                         if (++frames < framesOfGarbage) {
                             return;
                         }
                         frames = 0;
                         // Not yet: the frame is still being ended.
                         QMetaObject::invokeMethod(
                             &engine, [&engine] { engine.collectGarbage(); }, Qt::QueuedConnection);
                     });
}
