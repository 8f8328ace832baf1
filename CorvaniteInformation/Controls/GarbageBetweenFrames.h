// SPDX-License-Identifier: Apache-2.0

#pragma once

class QQmlEngine;
class QQuickWindow;

/// What rows that are gone leave behind in the engine. By itself the engine collects it once it is
/// as much as all that is in use, in the middle of whatever frame makes the row that is one too
/// many: 5 to 10 ms beside a full pack, on top of the frames that take longest anyway.
namespace GarbageBetweenFrames {

/// From now on it is collected when a number of frames have been drawn, before the next is begun.
/// For as long as both live.
void collect(QQuickWindow& window, QQmlEngine& engine);

} // namespace GarbageBetweenFrames
