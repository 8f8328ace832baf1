#pragma once

#include "InformationFileManager.h"

#include <QProcessEnvironment>

/// The files of this machine.
class LocalFileManager final : public InformationFileManager
{
public:
    /// @param applicationSupportDirectory what `applicationSupportDirectory()` answers
    explicit LocalFileManager(std::optional<QString> applicationSupportDirectory);

    /// The per-user data directory that the environment names: `$XDG_DATA_HOME`, else
    /// `$HOME/.local/share`. A relative value is ignored; neither gives nothing.
    /// https://specifications.freedesktop.org/basedir-spec/latest/
    static std::optional<QString>
    applicationSupportDirectory(const QProcessEnvironment& environment);

    std::optional<QString> applicationSupportDirectory() const override;
    std::expected<std::optional<QByteArray>, FileError>
    readFile(const QString& path) const override;
    std::expected<void, FileError> createDirectory(const QString& path) const override;
    std::expected<void, FileError> replaceFile(const QString& path,
                                               const QByteArray& bytes) const override;

    /// Removes the temporary files that a killed `replaceFile` left in the folder. Only the one
    /// process that holds the data directory may call it.
    void removeLeftovers(const QString& directory) const;

private:
    std::optional<QString> m_applicationSupportDirectory;
};
