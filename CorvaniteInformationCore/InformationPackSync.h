// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationFileManager.h"
#include "InformationPackSnapshot.h"
#include "InformationSignal.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <expected>
#include <optional>

/// Information packs: their validation, and the two files of the live directory.
namespace InformationPackSync {

inline constexpr QLatin1StringView expectedSchemaVersion("corvanite-public-information-pack-v6");
/// Of the raw document.
inline constexpr qsizetype maximumPackBytes = 1'500'000;

/// A validated pack.
using Snapshot = InformationPackSnapshot;

/// Why a document is not a pack.
struct SyncError
{
    enum class Kind { TooLarge, UnsupportedSchema, EmptyPack, Malformed };

    Kind kind;
    /// The document's length, with `TooLarge`.
    qsizetype byteCount = 0;
    /// The schema found, with `UnsupportedSchema`.
    QString schemaVersion = {};

    friend bool operator==(const SyncError&, const SyncError&) = default;
};

/// A pack is accepted whole or rejected whole; the first failing check decides the error.
std::expected<Snapshot, SyncError> parse(const QByteArray& document);

/// Where the live files lie: "Corvanite/Information" in the per-user data directory. Makes nothing.
std::optional<QString> liveDirectory(const InformationFileManager& fileManager);

/// Stores the bytes of a pack that `parse` accepted, making the directory where needed.
std::expected<void, FileError> saveSnapshot(const QByteArray& document, const QString& directory,
                                            const InformationFileManager& fileManager);

/// Stores the bytes of a retired list, unseen; `loadRetiredSignals` validates.
std::expected<void, FileError> saveRetiredSignals(const QByteArray& document,
                                                  const QString& directory,
                                                  const InformationFileManager& fileManager);

/// The stored pack, when it is valid and strictly newer than the compiled-in edition.
std::optional<Snapshot> loadSnapshot(const QString& directory,
                                     const InformationFileManager& fileManager);

/// The as-of of what `loadSnapshot` gives.
std::optional<QString> loadSnapshotAsOf(const QString& directory,
                                        const InformationFileManager& fileManager);

/// The signals of what `loadSnapshot` gives.
/// @param seedAsOf not used: the comparison is always with the compiled-in edition
std::optional<QList<InformationSignal>>
loadPreferredSignals(const QString& seedAsOf, const QString& directory,
                     const InformationFileManager& fileManager);

/// The stored retired list; nothing when it is missing or does not decode.
std::optional<QList<InformationSignal>>
loadRetiredSignals(const QString& directory, const InformationFileManager& fileManager);

} // namespace InformationPackSync
