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

    std::optional<QString> applicationSupportDirectory() const override
    {
        return m_files.applicationSupportDirectory();
    }

    std::expected<std::optional<QByteArray>, FileError> readFile(const QString& path) const override
    {
        return m_files.readFile(path);
    }

    std::expected<std::optional<std::chrono::sys_seconds>, FileError>
    writtenAt(const QString& path) const override
    {
        return m_files.writtenAt(path);
    }

    std::expected<void, FileError> createDirectory(const QString& path) const override
    {
        return writeFailure ? std::unexpected(*writeFailure) : m_files.createDirectory(path);
    }

    std::expected<void, FileError> replaceFile(const QString& path,
                                               const QByteArray& bytes) const override
    {
        return writeFailure ? std::unexpected(*writeFailure) : m_files.replaceFile(path, bytes);
    }

    std::expected<void, FileError> replaceReadFile(const QString& path,
                                                   const std::optional<QByteArray>& read,
                                                   const QByteArray& bytes) const override
    {
        return writeFailure ? std::unexpected(*writeFailure)
                            : m_files.replaceReadFile(path, read, bytes);
    }

private:
    const InformationFileManager& m_files;
};
