#pragma once

#include "InformationFileManager.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <utility>

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

    std::expected<std::optional<QByteArray>, FileError> readFile(const QString& path) const override
    {
        if (readFailure) {
            return std::unexpected(*readFailure);
        }
        const auto file = files.constFind(path);
        return file == files.cend() ? std::nullopt : std::optional(*file);
    }

    std::expected<std::optional<std::chrono::sys_seconds>, FileError>
    writtenAt(const QString& path) const override
    {
        const auto time = times.constFind(path);
        return time == times.cend() ? std::nullopt : std::optional(*time);
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

    std::expected<void, FileError> replaceReadFile(const QString& path,
                                                   const std::optional<QByteArray>& read,
                                                   const QByteArray& bytes) const override
    {
        if (const auto change = std::exchange(beforeReplacing, nullptr)) {
            change();
        }
        const auto present = readFile(path);
        if (!present) {
            return std::unexpected(present.error());
        }
        if (*present != read) {
            return std::unexpected(FileError{FileError::Reason::ChangedMeanwhile});
        }
        return replaceFile(path, bytes);
    }
};
