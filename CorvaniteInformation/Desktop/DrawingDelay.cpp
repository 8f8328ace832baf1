// SPDX-License-Identifier: Apache-2.0

#include "DrawingDelay.h"

#include <QtGlobal>

void DrawingDelay::switchOff()
{
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
}
