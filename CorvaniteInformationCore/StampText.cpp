// SPDX-License-Identifier: Apache-2.0

#include "StampText.h"

#include "DayText.h"
#include "InformationProjection.h"
#include "PaddedNumber.h"

using namespace std::chrono;

QString StampText::of(sys_seconds time)
{
    const sys_days day = floor<days>(time);
    const hh_mm_ss clock{time - day};
    QString text = DayText::of(day);
    text.append(u'T');
    appendPadded(text, static_cast<int>(clock.hours().count()), 2);
    text.append(u':');
    appendPadded(text, static_cast<int>(clock.minutes().count()), 2);
    text.append(u':');
    appendPadded(text, static_cast<int>(clock.seconds().count()), 2);
    text.append(u'Z');
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
