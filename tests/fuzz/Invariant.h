// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program, in every build, when the sentence does not hold.
inline void invariant(bool holds, const char* sentence)
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", sentence);
        std::abort();
    }
}
