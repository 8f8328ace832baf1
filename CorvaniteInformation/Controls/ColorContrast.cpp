// SPDX-License-Identifier: Apache-2.0

#include "ColorContrast.h"

#include <algorithm>
#include <cmath>

namespace {

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

} // namespace

double ColorContrast::relativeLuminance(const QColor& color)
{
    const auto rgb = color.toRgb();
    return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) +
           0.0722 * linear(rgb.blueF());
}

double ColorContrast::ratio(const QColor& first, const QColor& second)
{
    const auto [darker, lighter] =
        std::minmax({relativeLuminance(first), relativeLuminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor ColorContrast::over(const QColor& color, const QColor& ground)
{
    const auto top = color.toRgb();
    const auto below = ground.toRgb();
    const auto mixed = [opacity = top.alphaF()](float topComponent, float belowComponent) {
        return belowComponent + (topComponent - belowComponent) * opacity;
    };
    return QColor::fromRgbF(mixed(top.redF(), below.redF()), mixed(top.greenF(), below.greenF()),
                            mixed(top.blueF(), below.blueF()));
}
