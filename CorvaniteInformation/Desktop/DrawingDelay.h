// SPDX-License-Identifier: Apache-2.0

#pragma once

/// The five milliseconds for which Qt 6.4 waits with what has changed, in case more changes. They
/// come before every answer to a key.
namespace DrawingDelay {

/// From now on what has changed is drawn as soon as no event waits. Before the first window.
void switchOff();

} // namespace DrawingDelay
