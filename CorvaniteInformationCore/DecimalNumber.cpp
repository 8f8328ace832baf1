// SPDX-License-Identifier: Apache-2.0

#include "DecimalNumber.h"

#include <QtNumeric>

std::optional<qint64> decimalNumber(QStringView text)
{
    qint64 number = 0;
    for (const QChar character : text) {
        const qint64 digit = character.unicode() - u'0';
        if (digit < 0 || digit > 9 || qMulOverflow(number, qint64{10}, &number) ||
            qAddOverflow(number, digit, &number)) {
            return std::nullopt;
        }
    }
    return text.isEmpty() ? std::nullopt : std::optional(number);
}
