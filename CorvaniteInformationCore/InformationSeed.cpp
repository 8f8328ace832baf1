// SPDX-License-Identifier: Apache-2.0

#include "InformationSeed.h"

#include "InformationPackCoding.h"
#include "InformationPackSync.h"
#include "JsonReader.h"

#include <QResource>

#include <string_view>
#include <utility>

namespace {

namespace Key {
constexpr std::string_view sources = "sources";

constexpr std::string_view id = "id";
constexpr std::string_view name = "name";
constexpr std::string_view kind = "kind";
constexpr std::string_view take = "take";
constexpr std::string_view url = "url";
} // namespace Key

struct Edition
{
    InformationPackSync::Snapshot pack;
    QList<InformationSignal> retiredSignals;
    QList<InformationSourceEntry> registrySources;
};

/// The bytes lie in the program itself and are not copied.
QByteArray embeddedFile(const QString& name)
{
    return QResource(u":/corvanite/seed/"_qs + name).uncompressedData();
}

// The build fails where one of the files does not decode.
Edition decodeEdition()
{
    return {
        .pack = InformationPackSync::parse(embeddedFile(u"information-pack.json"_qs)).value(),
        .retiredSignals =
            InformationPackCoding::decodeRetired(embeddedFile(u"retired-signals.json"_qs)).value(),
        .registrySources =
            InformationSeed::parseRegistry(embeddedFile(u"registry-sources.json"_qs)).value(),
    };
}

const Edition& edition()
{
    static const Edition decoded = decodeEdition();
    return decoded;
}

InformationSourceEntry readSourceEntry(const JsonReader::Object& object)
{
    return {
        .id = object.string(Key::id),
        .name = object.string(Key::name),
        .kind = object.string(Key::kind),
        .take = object.string(Key::take),
        .url = object.string(Key::url),
    };
}

} // namespace

namespace InformationSeed {

const QString& schemaVersion()
{
    return edition().pack.schemaVersion;
}

const QString& selectionPolicyVersion()
{
    static const QString version = u"corvanite-public-auto-v1"_qs;
    return version;
}

const QString& asOf()
{
    return edition().pack.asOf;
}

qint64 checkedEntryCount()
{
    return edition().pack.checkedEntryCount;
}

const QList<InformationSignal>& signals()
{
    return edition().pack.signals;
}

const QList<SelectionDay>& selectionHistory()
{
    return edition().pack.selectionDays;
}

const QList<InformationSignal>& retiredSignals()
{
    return edition().retiredSignals;
}

const QList<InformationSourceEntry>& registrySources()
{
    return edition().registrySources;
}

std::optional<QList<InformationSourceEntry>> parseRegistry(const QByteArray& document)
{
    JsonReader reader(document);
    auto entries = reader.root().list(Key::sources, readSourceEntry);
    return reader.error() ? std::nullopt : std::optional(std::move(entries));
}

} // namespace InformationSeed
