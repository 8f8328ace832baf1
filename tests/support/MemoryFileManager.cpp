// SPDX-License-Identifier: Apache-2.0

#include "MemoryFileManager.h"

#include <utility>

std::expected<std::optional<QByteArray>, FileError>
MemoryFileManager::readFile(const QString& path) const
{
    if (readFailure) {
        return std::unexpected(*readFailure);
    }
    const auto file = files.constFind(path);
    return file == files.cend() ? std::nullopt : std::optional(*file);
}

std::expected<void, FileError> MemoryFileManager::createDirectory(const QString& path) const
{
    if (writeFailure) {
        return std::unexpected(*writeFailure);
    }
    folders.insert(path);
    return {};
}

std::expected<void, FileError> MemoryFileManager::replaceFile(const QString& path,
                                                              const QByteArray& bytes) const
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

std::expected<std::optional<std::chrono::sys_seconds>, FileError>
MemoryFileManager::writtenAt(const QString& path) const
{
    const auto time = times.constFind(path);
    return time == times.cend() ? std::nullopt : std::optional(*time);
}

std::expected<void, FileError>
MemoryFileManager::replaceReadFile(const QString& path, const std::optional<QByteArray>& read,
                                   const QByteArray& bytes) const
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
