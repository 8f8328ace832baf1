#include "WorkbenchDateLabels.h"

#include "InformationProjection.h"
#include "WeeklyDigest.h"

#include <chrono>
#include <optional>

using namespace std::chrono;

namespace {

// A day past its month's end is no day to show.
std::optional<year_month_day> calendarDay(const QString& day)
{
    const auto midnight = WeeklyDigest::utcMidnight(day);
    if (!midnight || WeeklyDigest::dayString(*midnight) != day) {
        return std::nullopt;
    }
    return year_month_day{*midnight};
}

std::optional<year_month_day> beijingDate(const QString& value)
{
    if (!value.contains(u'T')) {
        return calendarDay(value);
    }
    const auto milliseconds = InformationProjection::isoMilliseconds(value);
    return milliseconds ? calendarDay(InformationProjection::beijingDay(*milliseconds))
                        : std::nullopt;
}

} // namespace

QString WorkbenchDateLabels::label(const QString& value)
{
    const auto date = beijingDate(value);
    return date ? u"%1月%2日"_qs.arg(unsigned{date->month()}).arg(unsigned{date->day()}) : value;
}
