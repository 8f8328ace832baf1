// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileError.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <expected>
#include <optional>

/// The one way from the core to the disk. Tests put a failing one in its place.
class InformationFileManager
{
public:
    virtual ~InformationFileManager() = default;

    /// The platform's per-user data directory, absolute; nothing when there is none.
    virtual std::optional<QString> applicationSupportDirectory() const = 0;

    /// The whole file. Nothing when no file exists there, a dangling link included; but a link into
    /// a missing folder is an error, for the file may come back with it.
    virtual std::expected<std::optional<QByteArray>, FileError>
    readFile(const QString& path) const = 0;

    /// When the file was last written; nothing when no file exists there.
    virtual std::expected<std::optional<std::chrono::sys_seconds>, FileError>
    writtenAt(const QString& path) const = 0;

    /// Makes the folder and every missing one above it, for this user only (0700).
    virtual std::expected<void, FileError> createDirectory(const QString& path) const = 0;

    /// Replaces or makes the file (0600) so that every reader, and every later start, sees the old
    /// bytes or the new ones whole. On failure the old file is as it was.
    virtual std::expected<void, FileError> replaceFile(const QString& path,
                                                       const QByteArray& bytes) const = 0;

    /// The same where the file still holds what was read of it, nothing for no file; else it stays
    /// and the error is `ChangedMeanwhile`. Several programs that replace a file in this way only
    /// never replace what they have not read.
    virtual std::expected<void, FileError> replaceReadFile(const QString& path,
                                                           const std::optional<QByteArray>& read,
                                                           const QByteArray& bytes) const = 0;

protected:
    InformationFileManager() = default;
    InformationFileManager(const InformationFileManager&) = default;
    InformationFileManager& operator=(const InformationFileManager&) = default;
};
