// SPDX-License-Identifier: Apache-2.0

#include "StampText.h"

#include <algorithm>

using namespace std::chrono;

namespace {

constexpr QStringView form = u"0000-00-00T00:00:00Z";

// Whether it has a digit wherever the form has one, and else the same.
bool hasForm(QStringView text)
{
    return std::ranges::equal(text, form, [](QChar character, QChar expected) {
        return expected == u'0' ? character >= u'0' && character <= u'9' : character == expected;
    });
}

int readDigits(QStringView digits)
{
    int number = 0;
    for (const QChar digit : digits) {
        number = number * 10 + (digit.unicode() - u'0');
    }
    return number;
}

void writeDigits(QChar* begin, qsizetype width, int number)
{
    for (QChar* digit = begin + width; digit != begin; number /= 10) {
        *--digit = QChar(u'0' + number % 10);
    }
}

} // namespace

// By hand, for thousands are read and written.
QString StampText::of(sys_seconds time)
{
    const sys_days day = floor<days>(time);
    const year_month_day date{day};
    const hh_mm_ss clock{time - day};
    QString text = form.toString();
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
    if (!hasForm(text)) {
        return std::nullopt;
    }
    const auto number = [text](qsizetype begin, qsizetype width) {
        return readDigits(text.sliced(begin, width));
    };
    const year_month_day date{year{number(0, 4)}, month{static_cast<unsigned>(number(5, 2))},
                              day{static_cast<unsigned>(number(8, 2))}};
    const int hour = number(11, 2);
    const int minute = number(14, 2);
    const int second = number(17, 2);
    if (!date.ok() || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    return sys_days{date} + hours{hour} + minutes{minute} + seconds{second};
}
