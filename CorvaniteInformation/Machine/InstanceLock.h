// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "InformationFileManager.h"

#include <QByteArray>
#include <QString>

#include <expected>

/// The right to be the one program that works with a data directory: a kernel lock on the file
/// `.lock` in it. It ends with the object, and with the process in whatever way that ends.
class InstanceLock
{
public:
    /// Takes the lock without waiting; makes the directory and the file where needed, for this
    /// user only. The error is `InUse` where another running program holds the lock.
    static std::expected<InstanceLock, FileError> take(const QString& directory,
                                                       const InformationFileManager& fileManager);

    /// Whether the locked file still is the directory's. One that was deleted, alone or with its
    /// folder, keeps nobody away from what took its place.
    std::expected<bool, FileError> isInPlace() const;

private:
    InstanceLock(QByteArray path, FileDescriptor file);

    QByteArray m_path;
    FileDescriptor m_file;
};
