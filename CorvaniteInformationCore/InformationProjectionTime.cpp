// SPDX-License-Identifier: Apache-2.0

#include "InformationProjection.h"

#include "DayText.h"
#include "DecimalNumber.h"

#include <chrono>

using namespace std::chrono;

namespace {

// "YYYY-MM-DDThh:mm:ss".
struct CivilTime
{
    sys_days day;
    int hour;
    int minute;
    int second;

    double secondsSinceEpoch() const
    {
        return static_cast<double>(day.time_since_epoch().count()) * 86400 + hour * 3600 +
               minute * 60 + second;
    }
};

constexpr qsizetype dayLength = 10;
constexpr qsizetype civilTimeLength = 19;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

std::optional<int> decimalField(QStringView text, int most)
{
    const std::optional<qint64> value = decimalNumber(text);
    return value && *value <= most ? std::optional(static_cast<int>(*value)) : std::nullopt;
}

std::optional<CivilTime> civilTime(QStringView text)
{
    if (text.size() != civilTimeLength || (text[10] != u'T' && text[10] != u't') ||
        text[13] != u':' || text[16] != u':') {
        return std::nullopt;
    }
    const auto day = DayText::read(text.first(dayLength));
    const auto hour = decimalField(text.sliced(11, 2), 23);
    const auto minute = decimalField(text.sliced(14, 2), 59);
    const auto second = decimalField(text.sliced(17, 2), 60);
    if (!day || !hour || !minute || !second) {
        return std::nullopt;
    }
    return CivilTime{*day, *hour, *minute, *second};
}

// The value of "" (none) or "." and at least one digit.
std::optional<double> fraction(QStringView text)
{
    if (text.isEmpty()) {
        return 0;
    }
    if (text.size() == 1 || text.front() != u'.') {
        return std::nullopt;
    }
    double value = 0;
    double scale = 0.1;
    for (const QChar character : text.sliced(1)) {
        if (!isDigit(character)) {
            return std::nullopt;
        }
        value += (character.unicode() - u'0') * scale;
        scale /= 10;
    }
    return value;
}

// The seconds that "+hh:mm" or "-hh:mm" lies ahead of UTC.
std::optional<int> offsetSeconds(QStringView text)
{
    if (text.size() != 6 || (text[0] != u'+' && text[0] != u'-') || text[3] != u':') {
        return std::nullopt;
    }
    const auto hours = decimalField(text.sliced(1, 2), 23);
    const auto minutes = decimalField(text.sliced(4, 2), 59);
    if (!hours || !minutes) {
        return std::nullopt;
    }
    const int seconds = *hours * 3600 + *minutes * 60;
    return text[0] == u'-' ? -seconds : seconds;
}

// The same with an offset in place of "Z". Here a day has to be one of its month.
std::optional<double> offsetISOSeconds(QStringView text)
{
    constexpr qsizetype offsetLength = 6;
    if (text.size() < civilTimeLength + offsetLength || text[10] != u'T') {
        return std::nullopt;
    }
    const auto civil = civilTime(text.first(civilTimeLength));
    const auto fractional = fraction(text.sliced(civilTimeLength).chopped(offsetLength));
    const auto offset = offsetSeconds(text.last(offsetLength));
    if (!civil || !fractional || !offset || DayText::of(civil->day) != text.first(dayLength)) {
        return std::nullopt;
    }
    return civil->secondsSinceEpoch() + *fractional - *offset;
}

} // namespace

std::optional<double> InformationProjection::fastISOSeconds(QStringView text)
{
    if (text.size() < civilTimeLength + 1 || text.back() != u'Z') {
        return std::nullopt;
    }
    const auto civil = civilTime(text.first(civilTimeLength));
    const auto fractional = fraction(text.sliced(civilTimeLength).chopped(1));
    if (!civil || !fractional) {
        return std::nullopt;
    }
    return civil->secondsSinceEpoch() + *fractional;
}

std::optional<double> InformationProjection::parseISODate(QStringView text)
{
    const std::optional<double> seconds = fastISOSeconds(text);
    return seconds ? seconds : offsetISOSeconds(text);
}

std::optional<qint64> InformationProjection::isoMilliseconds(QStringView text)
{
    const std::optional<double> seconds = parseISODate(text);
    if (!seconds) {
        return std::nullopt;
    }
    return static_cast<qint64>(*seconds * 1000);
}

QString InformationProjection::beijingDay(qint64 milliseconds)
{
    const sys_time<std::chrono::milliseconds> instant{std::chrono::milliseconds{milliseconds}};
    return DayText::of(floor<days>(instant + hours{8}));
}
