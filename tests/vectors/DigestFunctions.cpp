// SPDX-License-Identifier: Apache-2.0

#include "VectorFunctions.h"

#include "ArchiveDigest.h"
#include "VectorFixtures.h"
#include "WeeklyDigest.h"

using namespace VectorFixtures;

namespace {

QJsonValue daysNewestFirst(const QJsonObject& in)
{
    return toJson(
        ArchiveDigest::daysNewestFirst(selectionDays(in.value(QLatin1StringView("days")))));
}

QJsonValue weeks(const QJsonObject& in)
{
    QJsonArray result;
    for (const auto& week :
         WeeklyDigest::weeks(selectionDays(in.value(QLatin1StringView("days"))))) {
        result.append(QJsonObject{{u"weekId"_qs, week.weekId},
                                  {u"monday"_qs, week.monday},
                                  {u"sunday"_qs, week.sunday},
                                  {u"days"_qs, toJson(week.days)}});
    }
    return result;
}

QJsonValue utcMidnight(const QJsonObject& in)
{
    const auto midnight = WeeklyDigest::utcMidnight(in.value(QLatin1StringView("day")).toString());
    if (!midnight) {
        return QJsonValue::Null;
    }
    const std::chrono::sys_seconds seconds = *midnight;
    return QJsonObject{{u"midnight"_qs, qint64{seconds.time_since_epoch().count()}},
                       {u"isoWeekday"_qs, WeeklyDigest::isoWeekday(*midnight)}};
}

QJsonValue focusSignalsOn(const QJsonObject& in)
{
    return ids(
        ArchiveDigest::focusSignals(selectionDay(in.value(QLatin1StringView("day")).toObject()),
                                    shortSignals(in.value(QLatin1StringView("signals")))));
}

// A function from a day text to an optional text.
VectorFunction ofDay(std::optional<QString> (*function)(QStringView))
{
    return [function](const QJsonObject& in) {
        return orNull(function(in.value(QLatin1StringView("day")).toString()));
    };
}

} // namespace

void addDigestFunctions(VectorFunctions& functions)
{
    functions.insert(u"daysNewestFirst"_qs, daysNewestFirst);
    functions.insert(u"weeks"_qs, weeks);
    functions.insert(u"weekOfDay"_qs, ofDay(WeeklyDigest::beijingWeekOfDay));
    functions.insert(u"mondayOfWeek"_qs, ofDay(WeeklyDigest::mondayOfWeek));
    functions.insert(u"sundayOfWeek"_qs, ofDay(WeeklyDigest::sundayOfWeek));
    functions.insert(u"utcMidnight"_qs, utcMidnight);
    functions.insert(u"focusSignalsOn"_qs, focusSignalsOn);
    functions.insert(u"beijingToday"_qs, [](const QJsonObject& in) -> QJsonValue {
        return WeeklyDigest::beijingToday(in.value(QLatin1StringView("now")).toDouble());
    });
}
