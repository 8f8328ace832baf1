// SPDX-License-Identifier: Apache-2.0

#include "VectorFunctions.h"

#include "DerivedState.h"
#include "ModelSession.h"

#include <QJsonArray>

namespace {

QJsonValue modelState(const QJsonObject& in)
{
    ModelSession session(in);
    return derivedState(session.model());
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

} // namespace

void addModelFunctions(VectorFunctions& functions)
{
    functions.insert(u"modelState"_qs, modelState);
    functions.insert(u"actionSequence"_qs, actionSequence);
}
