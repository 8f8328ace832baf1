// SPDX-License-Identifier: Apache-2.0

#include "VectorFunctions.h"

#include "ArchiveDateLabels.h"
#include "InformationLane.h"
#include "VectorFixtures.h"
#include "WeeklyDigestLabels.h"
#include "WorkbenchDateLabels.h"
#include "WorkbenchTexts.h"

#include <map>

namespace {

qsizetype count(const QJsonObject& in, QLatin1StringView key)
{
    return in.value(key).toInteger();
}

QString text(const QJsonObject& in, QLatin1StringView key)
{
    return in.value(key).toString();
}

InformationFollowUpdateMode updateMode(const QJsonObject& in)
{
    return fromRawValue<InformationFollowUpdateMode>(text(in, QLatin1StringView("updateMode")))
        .value();
}

QJsonValue workbenchLabel(const QJsonObject& in)
{
    return WorkbenchDateLabels::label(text(in, QLatin1StringView("value")));
}

QJsonValue archiveLabels(const QJsonObject& in)
{
    const QString day = text(in, QLatin1StringView("day"));
    return QJsonObject{{u"monthDay"_qs, ArchiveDateLabels::archiveMonthDayLabel(day)},
                       {u"weekday"_qs, ArchiveDateLabels::archiveWeekdayLabel(day)},
                       {u"long"_qs, ArchiveDateLabels::archiveLongLabel(day)}};
}

QJsonValue weeklyDayLabel(const QJsonObject& in)
{
    return WeeklyDigestLabels::dayLabel(text(in, QLatin1StringView("day")));
}

QJsonValue shortRange(const QJsonObject& in)
{
    return WeeklyDigestLabels::shortRange(text(in, QLatin1StringView("day")));
}

QJsonValue todayLead(const QJsonObject& in)
{
    return WorkbenchTexts::todayLead(count(in, QLatin1StringView("visible")),
                                     count(in, QLatin1StringView("focused")),
                                     count(in, QLatin1StringView("hidden")));
}

QJsonValue preferenceStatusText(const QJsonObject& in)
{
    return WorkbenchTexts::preferenceStatusText(count(in, QLatin1StringView("reducedLanes")),
                                                count(in, QLatin1StringView("hidden")));
}

QJsonValue intakeMessage(const QJsonObject& in)
{
    static const std::map<QString, InformationIntakeFailure> failures{
        {u"empty"_qs, InformationIntakeFailure::Empty},
        {u"tooLong"_qs, InformationIntakeFailure::TooLong},
        {u"unsupportedURL"_qs, InformationIntakeFailure::UnsupportedURL}};
    return WorkbenchTexts::intakeMessage(failures.at(text(in, QLatin1StringView("failure"))));
}

QJsonValue keepReceipt(const QJsonObject& in)
{
    return WorkbenchTexts::keepReceipt(updateMode(in));
}

QJsonValue followText(const QJsonObject& in)
{
    return WorkbenchTexts::followText(updateMode(in));
}

QJsonValue lane(const QJsonObject& in)
{
    const auto lane = fromRawValue<InformationLane>(text(in, QLatin1StringView("lane"))).value();
    const LaneAccent colour = accent(lane);
    return QJsonObject{{u"displayName"_qs, displayName(lane)},
                       {u"accent"_qs, QJsonArray{colour.red, colour.green, colour.blue}}};
}

} // namespace

void addLabelFunctions(VectorFunctions& functions)
{
    functions.insert(u"workbenchLabel"_qs, workbenchLabel);
    functions.insert(u"archiveLabels"_qs, archiveLabels);
    functions.insert(u"weeklyDayLabel"_qs, weeklyDayLabel);
    functions.insert(u"shortRange"_qs, shortRange);
    functions.insert(u"todayLead"_qs, todayLead);
    functions.insert(u"preferenceStatusText"_qs, preferenceStatusText);
    functions.insert(u"intakeMessage"_qs, intakeMessage);
    functions.insert(u"keepReceipt"_qs, keepReceipt);
    functions.insert(u"followText"_qs, followText);
    functions.insert(u"lane"_qs, lane);
}
