// SPDX-License-Identifier: Apache-2.0

#include "InformationPackSync.h"

#include "InformationPackCoding.h"
#include "InformationSeed.h"

#include <utility>

namespace {

constexpr QLatin1StringView snapshotFileName("information-pack.json");
constexpr QLatin1StringView retiredFileName("retired-signals.json");

QString pathIn(const QString& directory, QLatin1StringView fileName)
{
    return directory + QLatin1Char('/') + fileName;
}

std::optional<QByteArray> storedFile(const QString& directory, QLatin1StringView fileName,
                                     const InformationFileManager& fileManager)
{
    return fileManager.readFile(pathIn(directory, fileName)).value_or(std::nullopt);
}

std::expected<void, FileError> storeFile(const QByteArray& bytes, const QString& directory,
                                         QLatin1StringView fileName,
                                         const InformationFileManager& fileManager)
{
    if (const auto made = fileManager.createDirectory(directory); !made) {
        return made;
    }
    return fileManager.replaceFile(pathIn(directory, fileName), bytes);
}

} // namespace

namespace InformationPackSync {

std::expected<Snapshot, SyncError> parse(const QByteArray& document)
{
    if (document.size() > maximumPackBytes) {
        return std::unexpected(
            SyncError{.kind = SyncError::Kind::TooLarge, .byteCount = document.size()});
    }
    auto snapshot = InformationPackCoding::decode(document);
    if (!snapshot) {
        return std::unexpected(SyncError{.kind = SyncError::Kind::Malformed});
    }
    if (snapshot->schemaVersion != expectedSchemaVersion) {
        return std::unexpected(SyncError{.kind = SyncError::Kind::UnsupportedSchema,
                                         .schemaVersion = snapshot->schemaVersion});
    }
    if (snapshot->signals.isEmpty()) {
        return std::unexpected(SyncError{.kind = SyncError::Kind::EmptyPack});
    }
    return *std::move(snapshot);
}

std::optional<QString> liveDirectory(const InformationFileManager& fileManager)
{
    const auto support = fileManager.applicationSupportDirectory();
    return support ? std::optional(*support + u"/Corvanite/Information"_qs) : std::nullopt;
}

std::expected<void, FileError> saveSnapshot(const QByteArray& document, const QString& directory,
                                            const InformationFileManager& fileManager)
{
    return storeFile(document, directory, snapshotFileName, fileManager);
}

std::expected<void, FileError> saveRetiredSignals(const QByteArray& document,
                                                  const QString& directory,
                                                  const InformationFileManager& fileManager)
{
    return storeFile(document, directory, retiredFileName, fileManager);
}

std::optional<Snapshot> loadSnapshot(const QString& directory,
                                     const InformationFileManager& fileManager)
{
    const auto document = storedFile(directory, snapshotFileName, fileManager);
    if (!document) {
        return std::nullopt;
    }
    auto snapshot = parse(*document);
    if (!snapshot || !snapshot->isNewer(InformationSeed::asOf())) {
        return std::nullopt;
    }
    return *std::move(snapshot);
}

std::optional<QString> loadSnapshotAsOf(const QString& directory,
                                        const InformationFileManager& fileManager)
{
    const auto snapshot = loadSnapshot(directory, fileManager);
    return snapshot ? std::optional(snapshot->asOf) : std::nullopt;
}

std::optional<QList<InformationSignal>>
loadPreferredSignals(const QString&, const QString& directory,
                     const InformationFileManager& fileManager)
{
    const auto snapshot = loadSnapshot(directory, fileManager);
    return snapshot ? std::optional(snapshot->signals) : std::nullopt;
}

std::optional<QList<InformationSignal>>
loadRetiredSignals(const QString& directory, const InformationFileManager& fileManager)
{
    const auto document = storedFile(directory, retiredFileName, fileManager);
    return document ? InformationPackCoding::decodeRetired(*document) : std::nullopt;
}

} // namespace InformationPackSync
