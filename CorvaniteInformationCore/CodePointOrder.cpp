// SPDX-License-Identifier: Apache-2.0

#include "CodePointOrder.h"

#include <algorithm>
#include <cstring>

namespace {

// Moves surrogates above the rest of the basic plane, which turns UTF-16 order into code point
// order.
char16_t codePointRank(QChar unit)
{
    const char16_t value = unit.unicode();
    if (value >= 0xE000) {
        return static_cast<char16_t>(value - 0x800);
    }
    if (value >= 0xD800) {
        return static_cast<char16_t>(value + 0x2000);
    }
    return value;
}

// How many of the units are equal before one differs. Ids begin alike, so four are looked at
// together.
qsizetype equalUnits(const char16_t* left, const char16_t* right, qsizetype count)
{
    constexpr qsizetype together = 4;
    qsizetype equal = 0;
    while (count - equal >= together &&
           std::memcmp(left + equal, right + equal, together * sizeof(char16_t)) == 0) {
        equal += together;
    }
    while (equal < count && left[equal] == right[equal]) {
        ++equal;
    }
    return equal;
}

} // namespace

bool codePointLess(QStringView left, QStringView right)
{
    const qsizetype common = std::min(left.size(), right.size());
    const qsizetype differs = equalUnits(left.utf16(), right.utf16(), common);
    if (differs == common) {
        return right.size() > common;
    }
    return codePointRank(left[differs]) < codePointRank(right[differs]);
}
