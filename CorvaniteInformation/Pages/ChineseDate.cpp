// SPDX-License-Identifier: Apache-2.0

#include "ChineseDate.h"

#include "WeeklyDigest.h"

#include <array>

using namespace std::chrono;

QString ChineseDate::monthDay(sys_days day)
{
    const year_month_day date{day};
    return u"%1月%2日"_qs.arg(unsigned{date.month()}).arg(unsigned{date.day()});
}

QString ChineseDate::yearMonthDay(sys_days day)
{
    const int year{year_month_day{day}.year()};
    return u"%1年"_qs.arg(year, 4, 10, QLatin1Char('0')) + monthDay(day);
}

QString ChineseDate::weekday(sys_days day)
{
    static const std::array<QString, 7> names{u"星期一"_qs, u"星期二"_qs, u"星期三"_qs,
                                              u"星期四"_qs, u"星期五"_qs, u"星期六"_qs,
                                              u"星期日"_qs};
    return names.at(static_cast<size_t>(WeeklyDigest::isoWeekday(day)));
}
