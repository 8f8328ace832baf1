// SPDX-License-Identifier: Apache-2.0

#include "AtomicFile.h"

#include "FileDescriptor.h"

#include <QByteArrayView>
#include <QFile>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace {

constexpr QByteArrayView temporaryPrefix(".corvanite-");
constexpr QByteArrayView temporarySuffix(".tmp");
constexpr qsizetype temporaryDigits = 16;

constexpr int maximumLinks = 40;
constexpr int maximumNameAttempts = 16;

constexpr int maximumLockAttempts = 2000;
constexpr std::chrono::milliseconds lockPause(1);

std::unexpected<FileError> systemFailure()
{
    return std::unexpected(FileError::fromSystemError(errno));
}

QByteArray temporaryName()
{
    const QByteArray digits = QByteArray::number(QRandomGenerator::system()->generate64(), 16);
    return temporaryPrefix.toByteArray() + digits.rightJustified(temporaryDigits, '0') +
           temporarySuffix.toByteArray();
}

bool isTemporaryName(QByteArrayView name)
{
    if (name.size() != temporaryPrefix.size() + temporaryDigits + temporarySuffix.size() ||
        !name.startsWith(temporaryPrefix) || !name.endsWith(temporarySuffix)) {
        return false;
    }
    return std::ranges::all_of(name.sliced(temporaryPrefix.size(), temporaryDigits), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
    });
}

// A path cut at its last slash.
struct Location
{
    QByteArray folder;
    QByteArray name;

    explicit Location(const QByteArray& path)
    {
        const qsizetype slash = path.lastIndexOf('/');
        folder = slash < 0 ? QByteArray(".") : path.first(std::max<qsizetype>(slash, 1));
        name = path.sliced(slash + 1);
    }
};

// Where the bytes belong: the path itself, or what it links to in the end. A file that is there is
// an ordinary one.
std::expected<Location, FileError> replacedLocation(QByteArray path)
{
    for (int links = 0; links < maximumLinks; ++links) {
        Location location(path);
        struct stat status = {};
        if (::lstat(path.constData(), &status) != 0) {
            if (errno == ENOENT) {
                return location;
            }
            return systemFailure();
        }
        if (S_ISREG(status.st_mode)) {
            return location;
        }
        if (!S_ISLNK(status.st_mode)) {
            return std::unexpected(FileError{FileError::Reason::NotARegularFile});
        }
        QByteArray target(PATH_MAX, Qt::Uninitialized);
        const ssize_t length =
            ::readlink(path.constData(), target.data(), static_cast<size_t>(target.size()));
        if (length < 0) {
            return systemFailure();
        }
        target.truncate(length);
        path = target.startsWith('/') ? target : location.folder + '/' + target;
    }
    return std::unexpected(FileError::fromSystemError(ELOOP));
}

bool writeAll(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written =
            ::write(descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written > 0) {
            bytes = bytes.sliced(written);
        } else if (written == 0) {
            errno = EIO;
            return false;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

bool sync(int descriptor)
{
    int result = 0;
    do {
        result = ::fsync(descriptor);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

// A descriptor is gone after close() even when a signal interrupted it.
bool closed(int descriptor)
{
    return ::close(descriptor) == 0 || errno == EINTR;
}

// A new file that removes itself unless it takes another's place.
class TemporaryFile
{
public:
    explicit TemporaryFile(int folder) : m_folder(folder) {}
    ~TemporaryFile()
    {
        if (!m_name.isEmpty()) {
            ::unlinkat(m_folder, m_name.constData(), 0);
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::expected<void, FileError> store(QByteArrayView bytes)
    {
        FileDescriptor file(create());
        if (!file.isOpen() || !writeAll(file.get(), bytes) || !sync(file.get()) ||
            !closed(file.release())) {
            return systemFailure();
        }
        return {};
    }

    std::expected<void, FileError> takePlaceOf(const QByteArray& name)
    {
        if (::renameat(m_folder, m_name.constData(), m_folder, name.constData()) != 0) {
            return systemFailure();
        }
        m_name.clear();
        return {};
    }

private:
    int create()
    {
        for (int attempt = 0; attempt < maximumNameAttempts; ++attempt) {
            const QByteArray name = temporaryName();
            const int descriptor =
                ::openat(m_folder, name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
            if (descriptor >= 0) {
                m_name = name;
                return descriptor;
            }
            if (errno != EEXIST) {
                return -1;
            }
        }
        return -1;
    }

    int m_folder;
    QByteArray m_name;
};

// Keeps the folder, until its descriptor is closed, from others that lock it. Where the file system
// knows no locks there is nothing to wait for.
std::expected<void, FileError> lock(int folder)
{
    for (int attempt = 0; attempt < maximumLockAttempts; ++attempt) {
        if (::flock(folder, LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR)) {
            return {};
        }
        std::this_thread::sleep_for(lockPause);
    }
    return std::unexpected(FileError{FileError::Reason::InUse});
}

// The last look, which may refuse, is given the descriptor of the file's folder.
std::expected<void, FileError>
replaceAfter(const QString& path, const QByteArray& bytes,
             const std::function<std::expected<void, FileError>(int folder)>& lastLook)
{
    const auto location = replacedLocation(QFile::encodeName(path));
    if (!location) {
        return std::unexpected(location.error());
    }
    const FileDescriptor folder(
        ::open(location->folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen()) {
        return systemFailure();
    }
    TemporaryFile file(folder.get());
    if (const auto stored = file.store(bytes); !stored) {
        return stored;
    }
    if (const auto ready = lastLook(folder.get()); !ready) {
        return ready;
    }
    if (const auto replaced = file.takePlaceOf(location->name); !replaced) {
        return replaced;
    }
    // The new file is in place: a save that failed now would contradict the disk. The next one
    // syncs the folder again.
    sync(folder.get());
    return {};
}

// Gives the names of the symbolic links in the folder.
QList<QByteArray> removeTemporaryFiles(const QByteArray& folder)
{
    QList<QByteArray> links;
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.constData()), ::closedir);
    if (!entries) {
        return links;
    }
    const int descriptor = ::dirfd(entries.get());
    while (const dirent* entry = ::readdir(entries.get())) {
        struct stat status = {};
        if (isTemporaryName(entry->d_name)) {
            ::unlinkat(descriptor, entry->d_name, 0);
        } else if (::fstatat(descriptor, entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
                   S_ISLNK(status.st_mode)) {
            links.append(entry->d_name);
        }
    }
    return links;
}

} // namespace

std::expected<void, FileError> AtomicFile::replace(const QString& path, const QByteArray& bytes)
{
    return replaceAfter(path, bytes, [](int) { return std::expected<void, FileError>(); });
}

std::expected<void, FileError>
AtomicFile::replaceChecked(const QString& path, const QByteArray& bytes,
                           const std::function<std::expected<void, FileError>()>& check)
{
    return replaceAfter(path, bytes, [&check](int folder) {
        const auto locked = lock(folder);
        return locked ? check() : locked;
    });
}

std::expected<bool, FileError> AtomicFile::leadsIntoMissingFolder(const QString& path)
{
    const QByteArray encoded = QFile::encodeName(path);
    struct stat status = {};
    if (::lstat(encoded.constData(), &status) != 0) {
        if (errno == ENOENT || errno == ENOTDIR) {
            return false;
        }
        return systemFailure();
    }
    if (!S_ISLNK(status.st_mode)) {
        return false;
    }
    const auto location = replacedLocation(encoded);
    return location ? ::stat(location->folder.constData(), &status) != 0
                    : location.error().reason == FileError::Reason::FolderMissing;
}

void AtomicFile::removeLeftovers(const QString& folder)
{
    const QByteArray path = QFile::encodeName(folder);
    for (const QByteArray& link : removeTemporaryFiles(path)) {
        if (const auto location = replacedLocation(path + '/' + link)) {
            removeTemporaryFiles(location->folder);
        }
    }
}
