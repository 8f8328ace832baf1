// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

/// The objects that are alive, wherever they are. It has to watch before the first of them is made
/// that is to be counted.
namespace LiveObjects {

void watch();

qsizetype count();

/// The running timers of all of them.
qsizetype timers();

} // namespace LiveObjects
