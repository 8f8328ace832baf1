#pragma once

class QWindow;

namespace WindowActivation {

/// Brings the window to the front with the keyboard's focus. A minimised one comes back as it was,
/// maximised or not.
void bringUp(QWindow& window);

} // namespace WindowActivation
