// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// A number of a list as it is shown: at least two digits.
inline QString runningNumber(qsizetype number)
{
    return QString::number(number).rightJustified(2, u'0');
}
