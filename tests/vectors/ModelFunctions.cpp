#include "VectorFunctions.h"

#include "ModelSession.h"
#include "VectorFixtures.h"
#include "WorkbenchTexts.h"

#include <QJsonArray>

namespace {

QJsonValue modelState(const QJsonObject& in)
{
    using namespace VectorFixtures;
    ModelSession session(in);
    const InformationModel& model = session.model();

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
    return QJsonObject{
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

QJsonValue actionSequence(const QJsonObject& in)
{
    ModelSession session(in);
    QJsonArray states;
    for (const auto& action : in.value(QLatin1StringView("actions")).toArray()) {
        const QJsonValue returned = session.perform(action.toObject());
        QJsonObject state = session.state();
        if (!returned.isUndefined()) {
            state.insert(u"returned"_qs, returned);
        }
        states.append(state);
    }
    return states;
}

QJsonValue intakeMessage(const QJsonObject& in)
{
    const QString failure = in.value(QLatin1StringView("failure")).toString();
    if (failure == u"empty") {
        return InformationModel::intakeMessage(InformationIntakeFailure::Empty);
    }
    if (failure == u"tooLong") {
        return InformationModel::intakeMessage(InformationIntakeFailure::TooLong);
    }
    return InformationModel::intakeMessage(InformationIntakeFailure::UnsupportedURL);
}

QJsonValue keepReceipt(const QJsonObject& in)
{
    return InformationModel::keepReceipt(fromRawValue<InformationFollowUpdateMode>(
                                             in.value(QLatin1StringView("updateMode")).toString())
                                             .value());
}

} // namespace

void addModelFunctions(VectorFunctions& functions)
{
    functions.insert(u"modelState"_qs, modelState);
    functions.insert(u"actionSequence"_qs, actionSequence);
    functions.insert(u"intakeMessage"_qs, intakeMessage);
    functions.insert(u"keepReceipt"_qs, keepReceipt);
}
