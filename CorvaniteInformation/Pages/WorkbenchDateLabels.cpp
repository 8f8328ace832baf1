// SPDX-License-Identifier: Apache-2.0

#include "WorkbenchDateLabels.h"

#include "ChineseDate.h"
#include "InformationProjection.h"
#include "WeeklyDigest.h"

namespace {

std::optional<QString> dayOf(const QString& value)
{
    if (!value.contains(u'T')) {
        return value;
    }
    const auto milliseconds = InformationProjection::isoMilliseconds(value);
    return milliseconds ? std::optional(InformationProjection::beijingDay(*milliseconds))
                        : std::nullopt;
}

} // namespace

QString WorkbenchDateLabels::label(const QString& value)
{
    const auto day = dayOf(value);
    const auto date = day ? WeeklyDigest::utcMidnight(*day) : std::nullopt;
    // A day that does not read back as itself has rolled over its month's end or is written oddly.
    return date && WeeklyDigest::dayString(*date) == *day ? ChineseDate::monthDay(*date) : value;
}
