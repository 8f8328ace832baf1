// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>

/// How many outlines of letters FreeType is asked for.
namespace FreeTypeOutlines {

int takenApartDuring(const std::function<void()>& work);

} // namespace FreeTypeOutlines
