// SPDX-License-Identifier: Apache-2.0

#include "FolderWithFile.h"

#include "FileTree.h"

FolderWithFile::FolderWithFile()
{
    writeFile(file(), oldBytes);
}

bool FolderWithFile::holdsOnly(const QByteArray& bytes) const
{
    return namesIn(path()) == QStringList{u"file"_qs} && contentOf(file()) == bytes;
}

std::optional<FileError::Reason> failureOf(const std::expected<void, FileError>& result)
{
    return result ? std::nullopt : std::optional(result.error().reason);
}
