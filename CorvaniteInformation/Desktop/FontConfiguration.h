// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <future>

/// Which fonts the machine has and how they are to be drawn, as its files say.
namespace FontConfiguration {

/// Reads it on a thread of its own; what asks for a font later finds it read. Best called first of
/// all: it takes a twelfth of the start.
std::future<void> readAhead();

} // namespace FontConfiguration
