// SPDX-License-Identifier: Apache-2.0

#include "StampText.h"

#include "InformationProjection.h"

using namespace std::chrono;

namespace {

void writeDigits(QChar* begin, qsizetype width, int number)
{
    for (QChar* digit = begin + width; digit != begin; number /= 10) {
        *--digit = QChar(u'0' + number % 10);
    }
}

} // namespace

// By hand, for a save writes thousands of them.
QString StampText::of(sys_seconds time)
{
    const sys_days day = floor<days>(time);
    const year_month_day date{day};
    const hh_mm_ss clock{time - day};
    QString text = u"0000-00-00T00:00:00Z"_qs;
    QChar* const characters = text.data();
    writeDigits(characters, 4, int{date.year()});
    writeDigits(characters + 5, 2, static_cast<int>(unsigned{date.month()}));
    writeDigits(characters + 8, 2, static_cast<int>(unsigned{date.day()}));
    writeDigits(characters + 11, 2, static_cast<int>(clock.hours().count()));
    writeDigits(characters + 14, 2, static_cast<int>(clock.minutes().count()));
    writeDigits(characters + 17, 2, static_cast<int>(clock.seconds().count()));
    return text;
}

std::optional<sys_seconds> StampText::read(QStringView text)
{
    const auto read = InformationProjection::fastISOSeconds(text);
    if (!read) {
        return std::nullopt;
    }
    const sys_seconds time{seconds{static_cast<qint64>(*read)}};
    return of(time) == text ? std::optional(time) : std::nullopt;
}
