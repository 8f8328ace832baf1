// SPDX-License-Identifier: Apache-2.0

#include "VectorFunctions.h"

#include "InformationIntake.h"
#include "VectorFixtures.h"

#include <utility>

using namespace VectorFixtures;

namespace {

QString failureName(InformationIntakeFailure failure)
{
    switch (failure) {
    case InformationIntakeFailure::Empty:
        return u"empty"_qs;
    case InformationIntakeFailure::TooLong:
        return u"tooLong"_qs;
    case InformationIntakeFailure::UnsupportedURL:
        return u"unsupportedURL"_qs;
    }
    std::unreachable();
}

QJsonObject toJson(InformationIntakeFailure failure)
{
    return {{u"failure"_qs, failureName(failure)}};
}

QString input(const QJsonObject& in)
{
    return in.contains(QLatin1StringView("parts"))
               ? QString::fromUtf8(*document(in))
               : in.value(QLatin1StringView("input")).toString();
}

QJsonValue intakeNormalize(const QJsonObject& in)
{
    const auto intake = InformationIntake::normalize(input(in));
    if (!intake) {
        return toJson(intake.error());
    }
    return QJsonObject{{u"kind"_qs, intake->kind == NormalizedInformationIntake::Kind::Url
                                        ? u"url"_qs
                                        : u"text"_qs},
                       {u"value"_qs, intake->value},
                       {u"identity"_qs, intake->identity}};
}

QJsonValue intakeContains(const QJsonObject& in)
{
    const auto intake = InformationIntake::normalize(input(in));
    if (!intake) {
        return toJson(intake.error());
    }
    QList<CustomInformationSource> sources;
    for (const QString& source : strings(in.value(QLatin1StringView("sources")))) {
        sources.append({QUuid(), source, {}});
    }
    return InformationIntake::contains(*intake, sources);
}

} // namespace

void addIntakeFunctions(VectorFunctions& functions)
{
    functions.insert(u"intakeNormalize"_qs, intakeNormalize);
    functions.insert(u"intakeContains"_qs, intakeContains);
}
