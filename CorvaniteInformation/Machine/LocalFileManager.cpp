// SPDX-License-Identifier: Apache-2.0

#include "LocalFileManager.h"

#include "AtomicFile.h"
#include "FileDescriptor.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace {

std::unexpected<FileError> readFailure()
{
    auto error = FileError::fromSystemError(errno);
    if (error.reason == FileError::Reason::PermissionDenied) {
        error.reason = FileError::Reason::ReadPermissionDenied;
    }
    return std::unexpected(error);
}

std::expected<QByteArray, FileError> readAll(int descriptor, qsizetype expectedSize)
{
    // One byte more than expected, so that the end of the file is met without growing.
    QByteArray bytes(expectedSize + 1, Qt::Uninitialized);
    qsizetype size = 0;
    while (size <= LocalFileManager::maximumFileBytes) {
        if (size == bytes.size()) {
            bytes.resize(size * 2);
        }
        const ssize_t count =
            ::read(descriptor, bytes.data() + size, static_cast<size_t>(bytes.size() - size));
        if (count == 0) {
            bytes.truncate(size);
            return bytes;
        }
        if (count > 0) {
            size += count;
        } else if (errno != EINTR) {
            return readFailure();
        }
    }
    return std::unexpected(FileError::fromSystemError(EFBIG));
}

bool isDirectory(const QByteArray& path)
{
    struct stat status = {};
    return ::stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

QByteArray parentOf(const QByteArray& path)
{
    return path.first(std::max<qsizetype>(path.lastIndexOf('/'), 0));
}

// The error number, or 0 when the folder is there afterwards.
int makeOneDirectory(const QByteArray& path)
{
    if (::mkdir(path.constData(), 0700) == 0) {
        // Without this a power cut may take the folder, and a file saved in it, away again.
        const FileDescriptor parent(
            ::open((parentOf(path) + '/').constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (parent.isOpen()) {
            ::fsync(parent.get());
        }
        return 0;
    }
    if (errno == EEXIST) {
        return isDirectory(path) ? 0 : ENOTDIR;
    }
    return errno;
}

std::expected<void, FileError> makeDirectory(const QByteArray& path)
{
    int error = makeOneDirectory(path);
    const QByteArray parent = parentOf(path);
    if (error == ENOENT && !parent.isEmpty()) {
        if (const auto made = makeDirectory(parent); !made) {
            return made;
        }
        error = makeOneDirectory(path);
    }
    if (error != 0) {
        return std::unexpected(FileError::fromSystemError(error));
    }
    return {};
}

std::optional<QString> absolutePath(const QString& path)
{
    return path.startsWith(u'/') ? std::optional(path) : std::nullopt;
}

} // namespace

LocalFileManager::LocalFileManager(std::optional<QString> applicationSupportDirectory)
    : m_applicationSupportDirectory(std::move(applicationSupportDirectory))
{
}

std::optional<QString>
LocalFileManager::applicationSupportDirectory(const QProcessEnvironment& environment)
{
    if (const auto data = absolutePath(environment.value(QStringLiteral("XDG_DATA_HOME")))) {
        return data;
    }
    const auto home = absolutePath(environment.value(QStringLiteral("HOME")));
    return home ? std::optional(*home + QStringLiteral("/.local/share")) : std::nullopt;
}

std::optional<QString> LocalFileManager::applicationSupportDirectory() const
{
    return m_applicationSupportDirectory;
}

std::expected<std::optional<QByteArray>, FileError>
LocalFileManager::readFile(const QString& path) const
{
    // Without O_NONBLOCK the opening of a named pipe would wait for its writer.
    const FileDescriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen()) {
        if (errno != ENOENT && errno != ENOTDIR) {
            return readFailure();
        }
        const auto leadsAway = AtomicFile::leadsIntoMissingFolder(path);
        if (!leadsAway) {
            return std::unexpected(leadsAway.error());
        }
        if (*leadsAway) {
            return std::unexpected(FileError{FileError::Reason::FolderMissing});
        }
        return std::nullopt;
    }
    struct stat status = {};
    if (::fstat(file.get(), &status) != 0) {
        return readFailure();
    }
    if (!S_ISREG(status.st_mode)) {
        return std::unexpected(FileError{FileError::Reason::NotARegularFile});
    }
    if (status.st_size > maximumFileBytes) {
        return std::unexpected(FileError::fromSystemError(EFBIG));
    }
    return readAll(file.get(), status.st_size);
}

std::expected<std::optional<std::chrono::sys_seconds>, FileError>
LocalFileManager::writtenAt(const QString& path) const
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        if (errno == ENOENT || errno == ENOTDIR) {
            return std::nullopt;
        }
        return readFailure();
    }
    return std::chrono::sys_seconds(std::chrono::seconds(status.st_mtim.tv_sec));
}

std::expected<void, FileError> LocalFileManager::createDirectory(const QString& path) const
{
    return makeDirectory(QFile::encodeName(path));
}

std::expected<void, FileError> LocalFileManager::replaceFile(const QString& path,
                                                             const QByteArray& bytes) const
{
    return AtomicFile::replace(path, bytes);
}

std::expected<void, FileError>
LocalFileManager::replaceReadFile(const QString& path, const std::optional<QByteArray>& read,
                                  const QByteArray& bytes) const
{
    return AtomicFile::replaceChecked(path, bytes, [&]() -> std::expected<void, FileError> {
        const auto present = readFile(path);
        if (!present) {
            return std::unexpected(present.error());
        }
        if (*present != read) {
            return std::unexpected(FileError{FileError::Reason::ChangedMeanwhile});
        }
        return {};
    });
}

void LocalFileManager::removeLeftovers(const QString& directory) const
{
    AtomicFile::removeLeftovers(directory);
}
