// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationFileManager.h"

#include <QHash>
#include <QSet>

#include <functional>

/// Files in memory, with failures on demand.
class MemoryFileManager final : public InformationFileManager
{
public:
    std::optional<QString> supportDirectory = QStringLiteral("/support");
    /// Whole files by path. Written through the interface, so mutable.
    mutable QHash<QString, QByteArray> files;
    /// When files were written, by path.
    QHash<QString, std::chrono::sys_seconds> times;
    /// Folders made, by path.
    mutable QSet<QString> folders;
    /// What every read, or every write and folder, fails with.
    std::optional<FileError> readFailure;
    std::optional<FileError> writeFailure;
    /// What happens once between reading a file and replacing it.
    mutable std::function<void()> beforeReplacing;
    /// What writing one path fails with.
    QHash<QString, FileError> writeFailures;

    std::optional<QString> applicationSupportDirectory() const override { return supportDirectory; }
    std::expected<std::optional<QByteArray>, FileError>
    readFile(const QString& path) const override;
    std::expected<std::optional<std::chrono::sys_seconds>, FileError>
    writtenAt(const QString& path) const override;
    std::expected<void, FileError> createDirectory(const QString& path) const override;
    std::expected<void, FileError> replaceFile(const QString& path,
                                               const QByteArray& bytes) const override;
    std::expected<void, FileError> replaceReadFile(const QString& path,
                                                   const std::optional<QByteArray>& read,
                                                   const QByteArray& bytes) const override;
};
