// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPainterPath>
#include <QStringView>

#include <optional>

/// SVG's path data.
namespace SvgPath {

/// The path of data that consists of M, L, H, V, C, Z and circular A, each with absolute
/// coordinates; none for any other. Filled by the odd-even rule.
/// https://www.w3.org/TR/SVG11/paths.html
std::optional<QPainterPath> parse(QStringView data);

} // namespace SvgPath
