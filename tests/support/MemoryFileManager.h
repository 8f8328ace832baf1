#pragma once

#include "InformationFileManager.h"

#include <QHash>
#include <QSet>

/// Files in memory, with failures on demand.
class MemoryFileManager final : public InformationFileManager
{
public:
    std::optional<QString> supportDirectory = QStringLiteral("/support");
    /// Whole files by path. Written through the interface, so mutable.
    mutable QHash<QString, QByteArray> files;
    /// Folders made, by path.
    mutable QSet<QString> folders;
    /// What every read, or every write and folder, fails with.
    std::optional<FileError> readFailure;
    std::optional<FileError> writeFailure;
    /// What writing one path fails with.
    QHash<QString, FileError> writeFailures;

    std::optional<QString> applicationSupportDirectory() const override { return supportDirectory; }

    std::expected<std::optional<QByteArray>, FileError> readFile(const QString& path) const override
    {
        if (readFailure) {
            return std::unexpected(*readFailure);
        }
        const auto file = files.constFind(path);
        return file == files.cend() ? std::nullopt : std::optional(*file);
    }

    std::expected<void, FileError> createDirectory(const QString& path) const override
    {
        if (writeFailure) {
            return std::unexpected(*writeFailure);
        }
        folders.insert(path);
        return {};
    }

    std::expected<void, FileError> replaceFile(const QString& path,
                                               const QByteArray& bytes) const override
    {
        if (writeFailure) {
            return std::unexpected(*writeFailure);
        }
        if (const auto failure = writeFailures.constFind(path); failure != writeFailures.cend()) {
            return std::unexpected(*failure);
        }
        files.insert(path, bytes);
        return {};
    }
};
