// SPDX-License-Identifier: Apache-2.0

#include "DecimalNumber.h"

#include <QString>

#include <algorithm>

namespace {

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

std::optional<qint64> decimalNumber(QStringView text)
{
    if (!std::ranges::all_of(text, isDigit)) {
        return std::nullopt;
    }
    bool reads = false;
    const qint64 number = text.toLongLong(&reads);
    return reads ? std::optional(number) : std::nullopt;
}
