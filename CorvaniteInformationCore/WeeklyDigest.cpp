// SPDX-License-Identifier: Apache-2.0

#include "WeeklyDigest.h"

#include "CodePointOrder.h"
#include "DayText.h"
#include "InformationProjection.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <ranges>

using namespace std::chrono;

namespace {

sys_days mondayOf(sys_days date)
{
    return date - days{WeeklyDigest::isoWeekday(date)};
}

sys_days sundayOf(sys_days date)
{
    return mondayOf(date) + days{6};
}

// A week belongs to the year of its Thursday, and week 1 holds the year's first Thursday.
QString weekId(sys_days date)
{
    const sys_days thursday = mondayOf(date) + days{3};
    const year weekYear = year_month_day{thursday}.year();
    const auto week = (thursday - sys_days{weekYear / January / 1}) / days{7} + 1;
    return QString::asprintf("%04d-W%02d", int{weekYear}, static_cast<int>(week));
}

} // namespace

QList<WeeklyDigest::Week> WeeklyDigest::weeks(const QList<SelectionDay>& days)
{
    QList<SelectionDay> oldestFirst = days;
    std::ranges::stable_sort(oldestFirst, codePointLess, &SelectionDay::date);

    std::map<QString, Week> weeksById;
    for (const SelectionDay& day : oldestFirst) {
        const auto date = utcMidnight(day.date);
        if (!date) {
            continue;
        }
        const QString id = ::weekId(*date);
        const auto [entry, isNew] = weeksById.try_emplace(
            id, Week{id, dayString(mondayOf(*date)), dayString(sundayOf(*date)), {}});
        entry->second.days.append(day);
    }

    QList<Week> newestFirst;
    for (const Week& week : weeksById | std::views::values | std::views::reverse) {
        newestFirst.append(week);
    }
    return newestFirst;
}

QString WeeklyDigest::beijingToday(double now)
{
    return InformationProjection::beijingDay(static_cast<qint64>(std::floor(now * 1000)));
}

std::optional<QString> WeeklyDigest::beijingWeekOfDay(QStringView day)
{
    const auto date = utcMidnight(day);
    return date ? std::optional(::weekId(*date)) : std::nullopt;
}

std::optional<QString> WeeklyDigest::mondayOfWeek(QStringView day)
{
    const auto date = utcMidnight(day);
    return date ? std::optional(dayString(mondayOf(*date))) : std::nullopt;
}

std::optional<QString> WeeklyDigest::sundayOfWeek(QStringView day)
{
    const auto date = utcMidnight(day);
    return date ? std::optional(dayString(sundayOf(*date))) : std::nullopt;
}

std::optional<sys_days> WeeklyDigest::utcMidnight(QStringView day)
{
    return DayText::read(day);
}

int WeeklyDigest::isoWeekday(sys_days day)
{
    return (weekday{day} - Monday).count();
}

QString WeeklyDigest::dayString(sys_days day)
{
    return DayText::of(day);
}
