// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationFileManager.h"

/// The files of another manager, with failures of writing on demand.
class FailingFileManager final : public InformationFileManager
{
public:
    /// @param files outlive this
    explicit FailingFileManager(const InformationFileManager& files) : m_files(files) {}

    /// What every write fails with.
    std::optional<FileError> writeFailure;

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
    const InformationFileManager& m_files;
};
