// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSize>

/// How large the window comes up.
namespace FirstSize {

/// The least that the window's content can be laid out in.
constexpr QSize minimum(720, 560);

/// The usual size, or as much of it as the screen has room for; never below the minimum.
/// @param available the screen without what the desktop keeps for itself
constexpr QSize within(QSize available)
{
    constexpr QSize usual(1120, 780);
    return usual.boundedTo(available).expandedTo(minimum);
}

} // namespace FirstSize
