// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileError.h"
#include "InformationFileManager.h"
#include "InformationRepositoryError.h"
#include "InformationWorkspace.h"
#include "InformationWorkspaceCoding.h"

#include <QList>
#include <QString>

#include <chrono>
#include <expected>
#include <optional>
#include <variant>

/// Keeps the workspace in one JSON file. The file's form is described in
/// docs/formats/workspace.md.
struct InformationWorkspaceRepository
{
    /// What keeps a stored workspace from being loaded; the file stays untouched.
    using LoadError = std::variant<FileError, InformationWorkspaceCoding::DecodingError,
                                   InformationRepositoryError>;

    QString filePath;

    /// The repository of the per-user data directory. Makes nothing.
    static std::expected<InformationWorkspaceRepository, InformationRepositoryError>
    live(const InformationFileManager& fileManager);

    /// The stored workspace in its current version, or an empty one when there is no file. Older
    /// versions are migrated over the compiled-in signals. Writes nothing.
    std::expected<InformationWorkspace, LoadError>
    load(const InformationFileManager& fileManager) const;

    /// Replaces the file, making its folder where needed, and gives what it holds now; on failure
    /// the file is as it was.
    std::expected<QByteArray, FileError> save(const InformationWorkspace& workspace,
                                              const InformationFileManager& fileManager) const;

    /// The same over what was read of the file, nothing for no file; else `ChangedMeanwhile`.
    std::expected<QByteArray, FileError> saveOver(const std::optional<QByteArray>& read,
                                                  const InformationWorkspace& workspace,
                                                  const InformationFileManager& fileManager) const;

    /// Where the file of the day before is kept, beside the file.
    QString previousFilePath() const;

    /// Keeps the document, which the file holds, at `previousFilePath` for the first save of a day
    /// by the local calendar; for a later one does nothing. Where it cannot be kept the next save
    /// tries again: a save is not refused for want of an older one.
    void keepPrevious(const QByteArray& document, std::chrono::sys_seconds now,
                      const InformationFileManager& fileManager) const;

    friend bool operator==(const InformationWorkspaceRepository&,
                           const InformationWorkspaceRepository&) = default;
};

/// What a file with the document holds, in its current version.
std::expected<InformationWorkspace, InformationWorkspaceRepository::LoadError>
workspaceIn(const QByteArray& document);

/// A decoded workspace of any supported version in its current form.
/// @param catalog the signals whose ids older versions may hold, unique by id
std::expected<InformationWorkspace, InformationRepositoryError>
migrated(InformationWorkspace workspace, const QList<InformationSignal>& catalog);

/// The sentence for the reader.
QString localizedDescription(const InformationWorkspaceRepository::LoadError& error);
