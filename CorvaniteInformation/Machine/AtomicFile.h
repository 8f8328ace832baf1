// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileError.h"

#include <QByteArray>
#include <QString>

#include <expected>
#include <functional>

/// Files that are replaced whole or not at all. Why each step is taken:
/// docs/decisions/replacing-files.md.
namespace AtomicFile {

/// Replaces or makes the file (0600) in its folder, which has to exist. Every reader, and every
/// later start, sees the old bytes or the new ones whole; on failure the old file is as it was and
/// nothing of the new one remains. A symbolic link stays, its target is replaced or made.
std::expected<void, FileError> replace(const QString& path, const QByteArray& bytes);

/// The same after a last look: where `check` fails, so does this and nothing is replaced. Between
/// the look and the replacing no other program does so in the folder, as far as the file system
/// knows locks; one that keeps a lock on the folder for seconds is an error.
std::expected<void, FileError>
replaceChecked(const QString& path, const QByteArray& bytes,
               const std::function<std::expected<void, FileError>()>& check);

/// Whether the path is a symbolic link whose target, be it only made by `replace`, has no folder to
/// lie in.
std::expected<bool, FileError> leadsIntoMissingFolder(const QString& path);

/// Removes the temporary files that a killed `replace` of a file in the folder left, there or where
/// a symbolic link in it leads. A `replace` that runs meanwhile may fail for it, and loses nothing.
void removeLeftovers(const QString& folder);

} // namespace AtomicFile
