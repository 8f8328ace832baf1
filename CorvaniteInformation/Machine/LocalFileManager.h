// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationFileManager.h"

#include <QProcessEnvironment>

/// The files of this machine.
class LocalFileManager final : public InformationFileManager
{
public:
    /// A longer file is none of ours and is not read.
    static constexpr qsizetype maximumFileBytes = 256 * 1024 * 1024;

    /// @param applicationSupportDirectory what `applicationSupportDirectory()` answers
    explicit LocalFileManager(std::optional<QString> applicationSupportDirectory);

    /// The per-user data directory of the XDG Base Directories, as the environment names it:
    /// `$XDG_DATA_HOME`, else `$HOME/.local/share`. A relative value is ignored; neither gives
    /// nothing.
    static std::optional<QString>
    applicationSupportDirectory(const QProcessEnvironment& environment);

    std::optional<QString> applicationSupportDirectory() const override;
    /// Only ordinary files, at most `maximumFileBytes` long; never waits for another program.
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

    /// Removes the temporary files that a killed `replaceFile` left for the folder's files, also
    /// where a link leads elsewhere. For the one process that holds the data directory.
    void removeLeftovers(const QString& directory) const;

private:
    std::optional<QString> m_applicationSupportDirectory;
};
