// SPDX-License-Identifier: Apache-2.0

#include "VectorFixtures.h"
#include "VectorFunctions.h"

#include "InformationProjection.h"

using namespace VectorFixtures;

namespace {

QString text(const QJsonObject& in)
{
    return in.value(QLatin1StringView("text")).toString();
}

QList<InformationSignal> signalsOf(const QJsonObject& in)
{
    return shortSignals(in.value(QLatin1StringView("signals")));
}

InformationWorkspace workspaceOf(const QJsonObject& in)
{
    return workspace(in.value(QLatin1StringView("workspace")).toObject());
}

qsizetype limitOf(const QJsonObject& in)
{
    return in.value(QLatin1StringView("limit")).toInteger();
}

QString asOf(const QJsonObject& in)
{
    return in.value(QLatin1StringView("asOf")).toString();
}

QJsonArray versionKeys(const QList<InformationSignal>& signals)
{
    QJsonArray keys;
    for (const InformationSignal& signal : signals) {
        keys.append(InformationProjection::versionKey(signal));
    }
    return keys;
}

} // namespace

void addProjectionFunctions(VectorFunctions& functions)
{
    functions[u"fastISOSeconds"_qs] = [](const QJsonObject& in) {
        return orNull(InformationProjection::fastISOSeconds(text(in)));
    };
    functions[u"parseISODate"_qs] = [](const QJsonObject& in) {
        return orNull(InformationProjection::parseISODate(text(in)));
    };
    functions[u"isoMilliseconds"_qs] = [](const QJsonObject& in) {
        return orNull(InformationProjection::isoMilliseconds(text(in)));
    };
    functions[u"beijingDay"_qs] = [](const QJsonObject& in) {
        return InformationProjection::beijingDay(in.value(QLatin1StringView("ms")).toInteger());
    };
    functions[u"today"_qs] = [](const QJsonObject& in) {
        return versionKeys(InformationProjection::today(signalsOf(in), workspaceOf(in)));
    };
    functions[u"focusedToday"_qs] = [](const QJsonObject& in) {
        return versionKeys(InformationProjection::focusedToday(
            signalsOf(in), workspaceOf(in), limitOf(in), asOf(in),
            selectionDays(in.value(QLatin1StringView("history")))));
    };
    functions[u"remainingToday"_qs] = [](const QJsonObject& in) {
        return versionKeys(InformationProjection::remainingToday(
            signalsOf(in), workspaceOf(in), limitOf(in), asOf(in),
            selectionDays(in.value(QLatin1StringView("seedHistory")))));
    };
    functions[u"kept"_qs] = [](const QJsonObject& in) {
        return versionKeys(InformationProjection::kept(signalsOf(in), workspaceOf(in)));
    };
    functions[u"following"_qs] = [](const QJsonObject& in) {
        return versionKeys(InformationProjection::following(signalsOf(in), workspaceOf(in)));
    };
    functions[u"versionKey"_qs] = [](const QJsonObject& in) {
        return InformationProjection::versionKey(shortSignal(in));
    };
}
