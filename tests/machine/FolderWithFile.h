// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileError.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <expected>
#include <optional>

/// A folder with one file in it, "file", that holds `oldBytes`.
class FolderWithFile
{
public:
    static const QByteArray oldBytes;
    /// To put in their place.
    static const QByteArray newBytes;

    FolderWithFile();

    QString path() const { return m_folder.path(); }
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString file() const { return path(u"file"_qs); }

    /// Whether the file has these bytes and nothing is beside it.
    bool holdsOnly(const QByteArray& bytes) const;

private:
    QTemporaryDir m_folder;
};

/// Why it failed; nothing where it did not.
std::optional<FileError::Reason> failureOf(const std::expected<void, FileError>& result);
