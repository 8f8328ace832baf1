// SPDX-License-Identifier: Apache-2.0

#include "ThemeRules.h"

#include "ColorContrast.h"

namespace {

constexpr double darkBelowLuminance = 0.18;
constexpr double leastInkContrast = 7;

} // namespace

bool ThemeRules::isDark(const QColor& canvas)
{
    return ColorContrast::relativeLuminance(canvas) < darkBelowLuminance;
}

bool ThemeRules::inkReads(const QColor& ink, const QColor& canvas, const QColor& card)
{
    return ColorContrast::ratio(ink, canvas) >= leastInkContrast &&
           ColorContrast::ratio(ink, card) >= leastInkContrast;
}
