// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "LocalFileManager.h"
#include "ProgramInstance.h"

/// The files of this machine as one of several processes may use them: everything is read, but
/// nothing is stored unless the process holds the data directory. Where it could not hold it before
/// it tries again at each reading, so that nobody stores between that and the storing after it.
class InstanceFileManager final : public InformationFileManager
{
public:
    /// @param files, instance outlive this
    InstanceFileManager(const LocalFileManager& files, ProgramInstance& instance);

    std::optional<QString> applicationSupportDirectory() const override;
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

private:
    const LocalFileManager& m_files;
    ProgramInstance& m_instance;
};
