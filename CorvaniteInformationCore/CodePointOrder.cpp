// SPDX-License-Identifier: Apache-2.0

#include "CodePointOrder.h"

#include <algorithm>

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

} // namespace

bool codePointLess(QStringView left, QStringView right)
{
    const auto [differs, other] = std::ranges::mismatch(left, right);
    if (differs == left.end() || other == right.end()) {
        return other != right.end();
    }
    return codePointRank(*differs) < codePointRank(*other);
}
