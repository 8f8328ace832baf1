// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationLane.h"

#include <QColor>

/// The lane's accent as the screens draw it.
inline QColor laneColor(InformationLane lane)
{
    const auto [red, green, blue] = accent(lane);
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green),
                            static_cast<float>(blue));
}
