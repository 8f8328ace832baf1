// SPDX-License-Identifier: Apache-2.0

#include "FailingFileManager.h"

std::optional<QString> FailingFileManager::applicationSupportDirectory() const
{
    return m_files.applicationSupportDirectory();
}

std::expected<std::optional<QByteArray>, FileError>
FailingFileManager::readFile(const QString& path) const
{
    return m_files.readFile(path);
}

std::expected<void, FileError> FailingFileManager::createDirectory(const QString& path) const
{
    return writeFailure ? std::unexpected(*writeFailure) : m_files.createDirectory(path);
}

std::expected<void, FileError> FailingFileManager::replaceFile(const QString& path,
                                                               const QByteArray& bytes) const
{
    return writeFailure ? std::unexpected(*writeFailure) : m_files.replaceFile(path, bytes);
}

std::expected<std::optional<std::chrono::sys_seconds>, FileError>
FailingFileManager::writtenAt(const QString& path) const
{
    return m_files.writtenAt(path);
}

std::expected<void, FileError>
FailingFileManager::replaceReadFile(const QString& path, const std::optional<QByteArray>& read,
                                    const QByteArray& bytes) const
{
    return writeFailure ? std::unexpected(*writeFailure)
                        : m_files.replaceReadFile(path, read, bytes);
}
