// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileError.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <expected>
#include <optional>

inline const QByteArray oldBytes("old bytes");
/// To put in their place.
inline const QByteArray newBytes("the new bytes, which are longer");

/// A folder with one file in it, "file", that holds `oldBytes`.
class FolderWithFile
{
public:
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
