// SPDX-License-Identifier: Apache-2.0

#include "FileCallHook.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const FileCallHook* currentHook = nullptr;
int callNumber = 0;

// Whether the call is to fail; sets errno.
bool fails(const char* name)
{
    if (!currentHook) {
        return false;
    }
    ++callNumber;
    if (const auto error =
            currentHook->before ? currentHook->before(callNumber, name) : std::nullopt) {
        errno = *error;
        return true;
    }
    return false;
}

std::size_t transferable(std::size_t count)
{
    return currentHook ? std::min(count, currentHook->longestTransfer.value_or(count)) : count;
}

template <typename Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

void FileCallHook::during(const std::function<void()>& action) const
{
    currentHook = this;
    callNumber = 0;
    action();
    currentHook = nullptr;
}

// The program's own definitions come before the C library's.
extern "C" {

int open(const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto real = next<int(const char*, int, ...)>("open");
    return fails("open") ? -1 : real(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto real = next<int(int, const char*, int, ...)>("openat");
    return fails("openat") ? -1 : real(folder, path, flags, mode);
}

ssize_t read(int descriptor, void* bytes, size_t count)
{
    static const auto real = next<ssize_t(int, void*, size_t)>("read");
    return fails("read") ? -1 : real(descriptor, bytes, transferable(count));
}

ssize_t write(int descriptor, const void* bytes, size_t count)
{
    static const auto real = next<ssize_t(int, const void*, size_t)>("write");
    return fails("write") ? -1 : real(descriptor, bytes, transferable(count));
}

int fsync(int descriptor)
{
    static const auto real = next<int(int)>("fsync");
    return fails("fsync") ? -1 : real(descriptor);
}

int close(int descriptor)
{
    static const auto real = next<int(int)>("close");
    const bool failing = fails("close");
    const int error = errno;
    // As the system does it: the descriptor is gone, failure or not.
    const int result = real(descriptor);
    if (failing) {
        errno = error;
        return -1;
    }
    return result;
}

int renameat(int oldFolder, const char* oldPath, int newFolder, const char* newPath) noexcept
{
    static const auto real = next<int(int, const char*, int, const char*)>("renameat");
    return fails("renameat") ? -1 : real(oldFolder, oldPath, newFolder, newPath);
}

int lstat(const char* path, struct stat* status) noexcept
{
    static const auto real = next<int(const char*, struct stat*)>("lstat");
    return fails("lstat") ? -1 : real(path, status);
}

} // extern "C"
