#include "DecimalNumber.h"

#include <limits>

std::optional<qint64> decimalNumber(QStringView text)
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    if (text.isEmpty()) {
        return std::nullopt;
    }
    qint64 value = 0;
    for (const QChar character : text) {
        if (character < u'0' || character > u'9') {
            return std::nullopt;
        }
        const int digit = character.unicode() - u'0';
        if (value > (most - digit) / 10) {
            return std::nullopt;
        }
        value = value * 10 + digit;
    }
    return value;
}
