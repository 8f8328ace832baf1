// SPDX-License-Identifier: Apache-2.0

#include "PaddedNumber.h"

#include <array>
#include <charconv>
#include <cstdlib>

// By hand, for a save writes thousands of dates.
void appendPadded(QString& text, int number, qsizetype width)
{
    std::array<char, 11> buffer;
    const char* end = std::to_chars(buffer.begin(), buffer.end(), std::abs(qint64{number})).ptr;
    const QLatin1StringView digits(buffer.data(), end);
    const qsizetype signs = number < 0 ? 1 : 0;
    text.resize(text.size() + signs, u'-');
    text.resize(text.size() + std::max<qsizetype>(width - signs - digits.size(), 0), u'0');
    text.append(digits);
}
