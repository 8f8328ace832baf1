// SPDX-License-Identifier: Apache-2.0

#include "InstanceLock.h"

#include <QFile>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {

std::unexpected<FileError> systemFailure()
{
    return std::unexpected(FileError::fromSystemError(errno));
}

const std::unexpected<FileError> inUse(FileError{FileError::Reason::InUse});

} // namespace

InstanceLock::InstanceLock(QByteArray path, FileDescriptor file)
    : m_path(std::move(path)), m_file(std::move(file))
{
}

std::expected<InstanceLock, FileError> InstanceLock::take(const QString& directory,
                                                          const InformationFileManager& fileManager)
{
    if (const auto made = fileManager.createDirectory(directory); !made) {
        return std::unexpected(made.error());
    }
    const auto path = QFile::encodeName(directory + u"/.lock"_qs);
    FileDescriptor file(
        ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
    if (!file.isOpen()) {
        return systemFailure();
    }
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        return errno == EWOULDBLOCK ? inUse : systemFailure();
    }
    InstanceLock lock(path, std::move(file));
    const auto isInPlace = lock.isInPlace();
    if (!isInPlace) {
        return std::unexpected(isInPlace.error());
    }
    // Else the file was deleted before it was locked, and another program may hold the next one.
    if (!*isInPlace) {
        return inUse;
    }
    return lock;
}

std::expected<bool, FileError> InstanceLock::isInPlace() const
{
    struct stat locked = {};
    struct stat present = {};
    if (::fstat(m_file.get(), &locked) != 0) {
        return systemFailure();
    }
    if (::lstat(m_path.constData(), &present) != 0) {
        if (errno == ENOENT || errno == ENOTDIR) {
            return false;
        }
        return systemFailure();
    }
    return locked.st_dev == present.st_dev && locked.st_ino == present.st_ino;
}
