// SPDX-License-Identifier: Apache-2.0

#include "InstanceFileManager.h"

#include <tuple>

InstanceFileManager::InstanceFileManager(const LocalFileManager& files, ProgramInstance& instance)
    : m_files(files), m_instance(instance)
{
}

std::optional<QString> InstanceFileManager::applicationSupportDirectory() const
{
    return m_files.applicationSupportDirectory();
}

std::expected<std::optional<QByteArray>, FileError>
InstanceFileManager::readFile(const QString& path) const
{
    if (m_instance.standing() != ProgramInstance::Standing::First) {
        std::ignore = m_instance.hold();
    }
    return m_files.readFile(path);
}

std::expected<std::optional<std::chrono::sys_seconds>, FileError>
InstanceFileManager::writtenAt(const QString& path) const
{
    return m_files.writtenAt(path);
}

std::expected<void, FileError> InstanceFileManager::createDirectory(const QString& path) const
{
    return m_files.createDirectory(path);
}

std::expected<void, FileError> InstanceFileManager::replaceFile(const QString& path,
                                                                const QByteArray& bytes) const
{
    if (const auto held = m_instance.hold(); !held) {
        return held;
    }
    return m_files.replaceFile(path, bytes);
}

std::expected<void, FileError>
InstanceFileManager::replaceReadFile(const QString& path, const std::optional<QByteArray>& read,
                                     const QByteArray& bytes) const
{
    if (const auto held = m_instance.hold(); !held) {
        return held;
    }
    return m_files.replaceReadFile(path, read, bytes);
}
