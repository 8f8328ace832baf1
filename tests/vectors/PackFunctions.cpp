// SPDX-License-Identifier: Apache-2.0

#include "VectorFunctions.h"

#include "InformationPackSync.h"
#include "InformationSignalCoding.h"
#include "MemoryFileManager.h"
#include "PackLoading.h"
#include "VectorFixtures.h"

#include <QJsonArray>

#include <utility>

namespace {

QJsonArray toJson(const QList<InformationSignal>& signals)
{
    QJsonArray array;
    for (const auto& signal : signals) {
        array.append(InformationSignalCoding::encode(signal));
    }
    return array;
}

QJsonObject toJson(const InformationPackSync::Snapshot& snapshot)
{
    return {
        {u"schemaVersion"_qs, snapshot.schemaVersion},
        {u"asOf"_qs, snapshot.asOf},
        {u"checkedEntryCount"_qs, snapshot.checkedEntryCount},
        {u"signals"_qs, toJson(snapshot.signals)},
        {u"selectionDays"_qs, VectorFixtures::toJson(snapshot.selectionDays)},
    };
}

QJsonObject toJson(const InformationPackSync::SyncError& error)
{
    using Kind = InformationPackSync::SyncError::Kind;
    switch (error.kind) {
    case Kind::TooLarge:
        return {{u"error"_qs, u"tooLarge"_qs}, {u"payload"_qs, error.byteCount}};
    case Kind::UnsupportedSchema:
        return {{u"error"_qs, u"unsupportedSchema"_qs}, {u"payload"_qs, error.schemaVersion}};
    case Kind::EmptyPack:
        return {{u"error"_qs, u"emptyPack"_qs}};
    case Kind::Malformed:
        return {{u"error"_qs, u"malformed"_qs}};
    }
    std::unreachable();
}

QString name(OriginalReachability reachability)
{
    switch (reachability) {
    case OriginalReachability::Open:
        return u"open"_qs;
    case OriginalReachability::Spotty:
        return u"spotty"_qs;
    case OriginalReachability::Blocked:
        return u"blocked"_qs;
    }
    std::unreachable();
}

QJsonValue packParse(const QJsonObject& in)
{
    const auto document = VectorFixtures::document(in.value(u"doc").toObject());
    return parsedPack(document.value());
}

QJsonValue loadRetired(const QJsonObject& in)
{
    return loadedRetiredSignals(VectorFixtures::document(in.value(u"doc").toObject()));
}

QJsonValue snapshotIsNewer(const QJsonObject& in)
{
    const InformationPackSync::Snapshot snapshot{
        .schemaVersion = {},
        .asOf = in.value(u"asOf").toString(),
        .checkedEntryCount = 0,
        .signals = {},
        .selectionDays = {},
    };
    return snapshot.isNewer(in.value(u"than").toString());
}

QJsonValue originalReachability(const QJsonObject& in)
{
    return name(VectorFixtures::shortSignal(in).originalReachability());
}

QJsonValue reachableAlternate(const QJsonObject& in)
{
    const auto alternate = VectorFixtures::shortSignal(in).reachableAlternate();
    return alternate ? QJsonValue(InformationSignalCoding::encode(*alternate))
                     : QJsonValue(QJsonValue::Null);
}

QJsonValue relativeObservedLabel(const QJsonObject& in)
{
    return VectorFixtures::orNull(
        VectorFixtures::shortSignal(in).relativeObservedLabel(in.value(u"now").toDouble()));
}

} // namespace

QJsonObject parsedPack(const QByteArray& document)
{
    const auto snapshot = InformationPackSync::parse(document);
    return snapshot ? QJsonObject{{u"ok"_qs, toJson(*snapshot)}} : toJson(snapshot.error());
}

QJsonValue loadedRetiredSignals(const std::optional<QByteArray>& document)
{
    const MemoryFileManager fileManager;
    const QString directory = InformationPackSync::liveDirectory(fileManager).value();
    if (document) {
        InformationPackSync::saveRetiredSignals(*document, directory, fileManager).value();
    }
    const auto retired = InformationPackSync::loadRetiredSignals(directory, fileManager);
    return retired ? QJsonValue(toJson(*retired)) : QJsonValue(QJsonValue::Null);
}

void addPackFunctions(VectorFunctions& functions)
{
    functions.insert(u"packParse"_qs, packParse);
    functions.insert(u"loadRetired"_qs, loadRetired);
    functions.insert(u"snapshotIsNewer"_qs, snapshotIsNewer);
    functions.insert(u"originalReachability"_qs, originalReachability);
    functions.insert(u"reachableAlternate"_qs, reachableAlternate);
    functions.insert(u"relativeObservedLabel"_qs, relativeObservedLabel);
}
