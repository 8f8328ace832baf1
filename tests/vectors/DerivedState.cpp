// SPDX-License-Identifier: Apache-2.0

#include "DerivedState.h"

#include "VectorFixtures.h"
#include "WorkbenchTexts.h"

#include <QJsonArray>

QJsonObject derivedState(const InformationModel& model)
{
    using namespace VectorFixtures;
    QJsonObject laneCounts;
    for (const auto& lane : vocabulary<InformationLane>) {
        laneCounts.insert(lane.token, model.laneCount(lane.value));
    }
    QJsonObject isKept;
    QJsonObject savedEntryKey;
    for (const auto& signal : model.signals()) {
        const auto entry = model.savedEntry(signal);
        isKept.insert(signal.id, model.isKept(signal));
        savedEntryKey.insert(signal.id, entry ? QJsonValue(entry->first) : QJsonValue::Null);
    }
    QJsonArray weekIds;
    for (const auto& week : model.weeklyWeeks()) {
        weekIds.append(week.weekId);
    }
    QJsonArray archiveDays;
    for (const auto& day : model.archiveDays()) {
        archiveDays.append(day.date);
    }
    QJsonArray customInputs;
    for (const auto& source : model.keptCustomSources()) {
        customInputs.append(source.input);
    }
    const auto& workspace = model.workspace();
    return {
        {u"visible"_qs, ids(model.visibleSignals())},
        {u"focused"_qs, ids(model.focusedSignals())},
        {u"remaining"_qs, ids(model.remainingSignals())},
        {u"laneFiltered"_qs, ids(model.laneFilteredSignals())},
        {u"laneAllCount"_qs, model.laneAllCount()},
        {u"laneCounts"_qs, laneCounts},
        {u"keptSignals"_qs, ids(model.keptSignals())},
        {u"keptCustomInputs"_qs, customInputs},
        {u"keptItemCount"_qs, model.keptItemCount()},
        {u"isKept"_qs, isKept},
        {u"savedEntryKey"_qs, savedEntryKey},
        {u"todayLead"_qs,
         WorkbenchTexts::todayLead(model.visibleSignals().size(), model.focusedSignals().size(),
                                   workspace.hidden.size())},
        {u"preferenceStatusText"_qs, WorkbenchTexts::preferenceStatusText(
                                         workspace.reducedLanes.size(), workspace.hidden.size())},
        {u"archiveDays"_qs, archiveDays},
        {u"weekIds"_qs, weekIds},
    };
}
