// SPDX-License-Identifier: Apache-2.0

#include "FileCalls.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

struct Asked
{
    QByteArray folder;
    FileCalls::Judge judge;
};

std::optional<Asked> asked;

bool isBelow(const QByteArray& path)
{
    return path.startsWith(asked->folder) &&
           (path.size() == asked->folder.size() || path.at(asked->folder.size()) == '/');
}

QByteArray pathOf(int descriptor)
{
    char link[64];
    std::snprintf(link, sizeof(link), "/proc/self/fd/%d", descriptor);
    QByteArray path(PATH_MAX, Qt::Uninitialized);
    const auto length = ::readlinkat(AT_FDCWD, link, path.data(), static_cast<size_t>(path.size()));
    return path.first(std::max<qsizetype>(length, 0));
}

QByteArray pathOf(int folder, const char* path)
{
    return path[0] == '/' ? QByteArray(path) : pathOf(folder) + '/' + path;
}

void die()
{
    ::kill(::getpid(), SIGKILL);
}

// Makes the call, or fails with `failed`, or dies. What the judge does itself is not asked about.
template <typename Result, typename Call>
Result judged(const FileCall& call, Result failed, const Call& make)
{
    if (!isBelow(call.path)) {
        return make(false);
    }
    Verdict verdict;
    const int error = errno;
    FileCalls::unasked([&, judge = asked->judge] { verdict = judge(call); });
    errno = error;
    if (verdict.kind == Verdict::Kind::KilledBefore) {
        die();
    }
    if (verdict.kind == Verdict::Kind::Failed) {
        errno = verdict.error;
        return failed;
    }
    const Result result = make(verdict.kind == Verdict::Kind::MadeByHalf);
    if (verdict.kind == Verdict::Kind::KilledAfter) {
        die();
    }
    return result;
}

template <typename Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

mode_t createdMode(int flags, std::va_list arguments)
{
    return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

FileCalls::FileCalls(QByteArray folder, Judge judge)
{
    asked = Asked{std::move(folder), std::move(judge)};
}

FileCalls::~FileCalls()
{
    asked.reset();
}

void FileCalls::unasked(const std::function<void()>& act)
{
    auto paused = std::exchange(asked, std::nullopt);
    act();
    asked = std::move(paused);
}

// The program's own definitions come before the C library's.
extern "C" {

int open(const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = createdMode(flags, arguments);
    va_end(arguments);
    static const auto real = next<int(const char*, int, ...)>("open");
    const auto make = [&](bool) { return real(path, flags, mode); };
    return asked ? judged({.name = "open", .path = path, .isMaking = (flags & O_CREAT) != 0}, -1,
                          make)
                 : make(false);
}

int openat(int folder, const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = createdMode(flags, arguments);
    va_end(arguments);
    static const auto real = next<int(int, const char*, int, ...)>("openat");
    const auto make = [&](bool) { return real(folder, path, flags, mode); };
    return asked ? judged({.name = "openat",
                           .path = pathOf(folder, path),
                           .isMaking = (flags & O_CREAT) != 0},
                          -1, make)
                 : make(false);
}

DIR* opendir(const char* path)
{
    static const auto real = next<DIR*(const char*)>("opendir");
    const auto make = [&](bool) { return real(path); };
    return asked ? judged<DIR*>({.name = "opendir", .path = path}, nullptr, make) : make(false);
}

ssize_t read(int descriptor, void* bytes, size_t count)
{
    static const auto real = next<ssize_t(int, void*, size_t)>("read");
    const auto make = [&](bool) { return real(descriptor, bytes, count); };
    return asked ? judged<ssize_t>({.name = "read", .path = pathOf(descriptor)}, -1, make)
                 : make(false);
}

ssize_t write(int descriptor, const void* bytes, size_t count)
{
    static const auto real = next<ssize_t(int, const void*, size_t)>("write");
    const auto make = [&](bool half) { return real(descriptor, bytes, half ? count / 2 : count); };
    return asked ? judged<ssize_t>({.name = "write",
                                    .path = pathOf(descriptor),
                                    .bytes = QByteArray(static_cast<const char*>(bytes),
                                                        static_cast<qsizetype>(count))},
                                   -1, make)
                 : make(false);
}

int fsync(int descriptor)
{
    const auto make = [](bool) { return 0; };
    return asked ? judged({.name = "fsync", .path = pathOf(descriptor)}, -1, make) : make(false);
}

int flock(int descriptor, int operation) noexcept
{
    static const auto real = next<int(int, int)>("flock");
    const auto make = [&](bool) { return real(descriptor, operation); };
    return asked ? judged({.name = "flock", .path = pathOf(descriptor)}, -1, make) : make(false);
}

int close(int descriptor)
{
    static const auto real = next<int(int)>("close");
    if (!asked) {
        return real(descriptor);
    }
    const FileCall call{.name = "close", .path = pathOf(descriptor)};
    // As the system does it: the descriptor is gone, failure or not.
    int result = -1;
    const int judgement = judged(call, -1, [&](bool) { return result = real(descriptor); });
    if (judgement == -1 && result == -1) {
        const int error = errno;
        real(descriptor);
        errno = error;
    }
    return judgement;
}

int renameat(int oldFolder, const char* oldPath, int newFolder, const char* newPath) noexcept
{
    static const auto real = next<int(int, const char*, int, const char*)>("renameat");
    const auto make = [&](bool) { return real(oldFolder, oldPath, newFolder, newPath); };
    return asked ? judged({.name = "renameat",
                           .path = pathOf(newFolder, newPath),
                           .source = pathOf(oldFolder, oldPath)},
                          -1, make)
                 : make(false);
}

int unlinkat(int folder, const char* path, int flags) noexcept
{
    static const auto real = next<int(int, const char*, int)>("unlinkat");
    const auto make = [&](bool) { return real(folder, path, flags); };
    return asked ? judged({.name = "unlinkat", .path = pathOf(folder, path)}, -1, make)
                 : make(false);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    static const auto real = next<int(const char*, mode_t)>("mkdir");
    const auto make = [&](bool) { return real(path, mode); };
    return asked ? judged({.name = "mkdir", .path = path}, -1, make) : make(false);
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept
{
    static const auto real = next<ssize_t(const char*, char*, size_t)>("readlink");
    const auto make = [&](bool) { return real(path, target, size); };
    return asked ? judged<ssize_t>({.name = "readlink", .path = path}, -1, make) : make(false);
}

int stat(const char* path, struct stat* status) noexcept
{
    static const auto real = next<int(const char*, struct stat*)>("stat");
    const auto make = [&](bool) { return real(path, status); };
    return asked ? judged({.name = "stat", .path = path}, -1, make) : make(false);
}

int lstat(const char* path, struct stat* status) noexcept
{
    static const auto real = next<int(const char*, struct stat*)>("lstat");
    const auto make = [&](bool) { return real(path, status); };
    return asked ? judged({.name = "lstat", .path = path}, -1, make) : make(false);
}

int fstat(int descriptor, struct stat* status) noexcept
{
    static const auto real = next<int(int, struct stat*)>("fstat");
    const auto make = [&](bool) { return real(descriptor, status); };
    return asked ? judged({.name = "fstat", .path = pathOf(descriptor)}, -1, make) : make(false);
}

} // extern "C"
