// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>

/// How colours read on each other, by the formulas of WCAG 2.
namespace ColorContrast {

/// From 0, black, to 1, white; the colour's opacity is left out.
/// https://www.w3.org/TR/WCAG22/#dfn-relative-luminance
double relativeLuminance(const QColor& color);

/// From 1, no contrast, to 21, black on white; the order does not matter.
/// https://www.w3.org/TR/WCAG22/#dfn-contrast-ratio
double ratio(const QColor& first, const QColor& second);

/// The opaque colour seen where `color`, with its opacity, lies on the opaque `ground`.
QColor over(const QColor& color, const QColor& ground);

} // namespace ColorContrast
