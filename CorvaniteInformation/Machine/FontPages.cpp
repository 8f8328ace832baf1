// SPDX-License-Identifier: Apache-2.0

#include "FontPages.h"

#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>

namespace {

/// Whether a line of proc(5) `maps` is of a font's file that is read and never written: its pages
/// are read again when they are asked for.
bool isFont(std::string_view line)
{
    constexpr std::array<std::string_view, 3> endings{".ttc", ".otf", ".ttf"};
    return line.find(" r--p ") != std::string_view::npos &&
           std::ranges::any_of(endings, [line](auto ending) { return line.ends_with(ending); });
}

} // namespace

void FontPages::giveBack()
{
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        if (isFont(line) &&
            std::sscanf(line.c_str(), "%" SCNxPTR "-%" SCNxPTR, &begin, &end) == 2) {
            madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED);
        }
    }
}
