// SPDX-License-Identifier: Apache-2.0

#include "VectorFunctions.h"

#include "SignalStrata.h"

#include <QJsonArray>

namespace {

QJsonObject toJson(const SignalStrata::Spec& spec)
{
    return {{u"bandCount"_qs, spec.bandCount},
            {u"accentBand"_qs, spec.accentBand},
            {u"breakBand"_qs, spec.breakBand},
            {u"shift"_qs, spec.shift},
            {u"baseOpacity"_qs, spec.baseOpacity}};
}

SignalStrata::Spec specFromJson(const QJsonObject& spec)
{
    return {.bandCount = spec.value(QLatin1StringView("bandCount")).toInt(),
            .accentBand = spec.value(QLatin1StringView("accentBand")).toInt(),
            .breakBand = spec.value(QLatin1StringView("breakBand")).toInt(),
            .shift = spec.value(QLatin1StringView("shift")).toInt(),
            .baseOpacity = spec.value(QLatin1StringView("baseOpacity")).toDouble()};
}

QJsonObject toJson(const SignalStrata::Band& band)
{
    return {{u"index"_qs, band.index}, {u"x"_qs, band.x},           {u"y"_qs, band.y},
            {u"width"_qs, band.width}, {u"height"_qs, band.height}, {u"opacity"_qs, band.opacity}};
}

} // namespace

void addStrataFunctions(VectorFunctions& functions)
{
    functions[u"fnv1a"_qs] = [](const QJsonObject& in) {
        return qint64{SignalStrata::fnv1a(in.value(QLatin1StringView("text")).toString())};
    };
    functions[u"strataParameters"_qs] = [](const QJsonObject& in) {
        return toJson(SignalStrata::spec(in.value(QLatin1StringView("id")).toString()));
    };
    functions[u"strataBands"_qs] = [](const QJsonObject& in) {
        QJsonArray bands;
        for (const SignalStrata::Band& band :
             SignalStrata::bands(in.value(QLatin1StringView("id")).toString())) {
            bands.append(toJson(band));
        }
        return bands;
    };
    functions[u"bandOpacity"_qs] = [](const QJsonObject& in) {
        const SignalStrata::Spec spec =
            specFromJson(in.value(QLatin1StringView("parameters")).toObject());
        QJsonArray opacities;
        for (int band = 0; band < spec.bandCount; ++band) {
            opacities.append(SignalStrata::bandOpacity(band, spec));
        }
        return opacities;
    };
}
