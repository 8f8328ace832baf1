#include "MemoryFileManager.h"

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
