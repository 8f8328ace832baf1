// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

class QWindow;

namespace WindowActivation {

/// Brings the window to the front with the keyboard's focus. A minimised one comes back as it was,
/// maximised or not.
/// @param token with which a desktop that asks for one lets it, or empty
void bringUp(QWindow& window, const QByteArray& token = {});

} // namespace WindowActivation
