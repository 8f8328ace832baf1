// Preloaded into a program, this stands between it and the calls that files are read and replaced
// by, and makes the planned ones fail. It allocates nothing and makes raw system calls for its own
// needs, so that it may stand at any call.

#include "FaultSettings.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct Fault
{
    enum class Kind { Absent, Error, ShortWrite, KillBefore, KillAfter };

    Kind kind = Kind::Absent;
    int error = 0;
};

const char* setting(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

bool startsWith(const char* text, const char* start)
{
    return std::strncmp(text, start, std::strlen(start)) == 0;
}

bool isCounted(const char* path)
{
    static const char* const folder = setting(FaultSettings::folder);
    const size_t length = std::strlen(folder);
    return length > 0 && startsWith(path, folder) && (path[length] == '/' || path[length] == '\0');
}

bool isCounted(int descriptor)
{
    char link[64];
    std::snprintf(link, sizeof(link), "/proc/self/fd/%d", descriptor);
    char path[PATH_MAX];
    const long length = ::syscall(SYS_readlinkat, AT_FDCWD, link, path, sizeof(path) - 1);
    if (length < 0) {
        return false;
    }
    path[length] = '\0';
    return isCounted(path);
}

bool isCounted(int folder, const char* path)
{
    return path[0] == '/' ? isCounted(path) : isCounted(folder);
}

Fault parsedFault(const char* text)
{
    if (startsWith(text, "short")) {
        return {Fault::Kind::ShortWrite};
    }
    if (startsWith(text, "kill-before")) {
        return {Fault::Kind::KillBefore};
    }
    if (startsWith(text, "kill-after")) {
        return {Fault::Kind::KillAfter};
    }
    return {Fault::Kind::Error, std::atoi(text)};
}

Fault plannedFault(int callNumber)
{
    const char* entry = setting(FaultSettings::plan);
    while (entry && *entry != '\0') {
        char* rest = nullptr;
        if (std::strtol(entry, &rest, 10) == callNumber) {
            return parsedFault(rest + 1);
        }
        entry = std::strchr(entry, ';');
        entry = entry ? entry + 1 : nullptr;
    }
    return {};
}

void trace(const char* name, bool isFaulty)
{
    static const long file =
        ::syscall(SYS_openat, AT_FDCWD, setting(FaultSettings::trace),
                  O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR);
    char line[64];
    const int length = std::snprintf(line, sizeof(line), "%s%s\n", name, isFaulty ? " !" : "");
    ::syscall(SYS_write, file, line, length);
}

// Numbers the call and says what is to happen at it.
Fault nextFault(const char* name, bool isLongWrite = false)
{
    static std::atomic<int> callNumber = 0;
    Fault fault = plannedFault(++callNumber);
    if (fault.kind == Fault::Kind::ShortWrite && !isLongWrite) {
        fault = {};
    }
    trace(name, fault.kind != Fault::Kind::Absent);
    return fault;
}

void die()
{
    ::kill(::getpid(), SIGKILL);
}

// Makes the call, or fails with `failed`, or dies.
template <typename Result, typename Call>
Result made(const Fault& fault, Result failed, const Call& call)
{
    if (fault.kind == Fault::Kind::KillBefore) {
        die();
    }
    if (fault.kind == Fault::Kind::Error) {
        errno = fault.error;
        return failed;
    }
    const Result result = call();
    if (fault.kind == Fault::Kind::KillAfter) {
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

extern "C" {

int open(const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = createdMode(flags, arguments);
    va_end(arguments);
    static const auto real = next<int(const char*, int, ...)>("open");
    const auto call = [&] { return real(path, flags, mode); };
    return isCounted(path) ? made(nextFault("open"), -1, call) : call();
}

int openat(int folder, const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = createdMode(flags, arguments);
    va_end(arguments);
    static const auto real = next<int(int, const char*, int, ...)>("openat");
    const auto call = [&] { return real(folder, path, flags, mode); };
    return isCounted(folder, path) ? made(nextFault("openat"), -1, call) : call();
}

DIR* opendir(const char* path)
{
    static const auto real = next<DIR*(const char*)>("opendir");
    const auto call = [&] { return real(path); };
    return isCounted(path) ? made<DIR*>(nextFault("opendir"), nullptr, call) : call();
}

ssize_t read(int descriptor, void* bytes, size_t count)
{
    static const auto real = next<ssize_t(int, void*, size_t)>("read");
    const auto call = [&] { return real(descriptor, bytes, count); };
    return isCounted(descriptor) ? made<ssize_t>(nextFault("read"), -1, call) : call();
}

ssize_t write(int descriptor, const void* bytes, size_t count)
{
    static const auto real = next<ssize_t(int, const void*, size_t)>("write");
    if (!isCounted(descriptor)) {
        return real(descriptor, bytes, count);
    }
    const Fault fault = nextFault("write", count > 1);
    const size_t written = fault.kind == Fault::Kind::ShortWrite ? count / 2 : count;
    return made<ssize_t>(fault, -1, [&] { return real(descriptor, bytes, written); });
}

int fsync(int descriptor)
{
    static const auto real = next<int(int)>("fsync");
    const auto call = [&] { return real(descriptor); };
    return isCounted(descriptor) ? made(nextFault("fsync"), -1, call) : call();
}

int flock(int descriptor, int operation) noexcept
{
    static const auto real = next<int(int, int)>("flock");
    const auto call = [&] { return real(descriptor, operation); };
    return isCounted(descriptor) ? made(nextFault("flock"), -1, call) : call();
}

int close(int descriptor)
{
    static const auto real = next<int(int)>("close");
    if (!isCounted(descriptor)) {
        return real(descriptor);
    }
    const Fault fault = nextFault("close");
    if (fault.kind == Fault::Kind::Error) {
        // As the system does it: the descriptor is gone, failure or not.
        real(descriptor);
    }
    return made(fault, -1, [&] { return real(descriptor); });
}

int renameat(int oldFolder, const char* oldPath, int newFolder, const char* newPath) noexcept
{
    static const auto real = next<int(int, const char*, int, const char*)>("renameat");
    const auto call = [&] { return real(oldFolder, oldPath, newFolder, newPath); };
    return isCounted(newFolder, newPath) ? made(nextFault("renameat"), -1, call) : call();
}

int unlinkat(int folder, const char* path, int flags) noexcept
{
    static const auto real = next<int(int, const char*, int)>("unlinkat");
    const auto call = [&] { return real(folder, path, flags); };
    return isCounted(folder, path) ? made(nextFault("unlinkat"), -1, call) : call();
}

int mkdir(const char* path, mode_t mode) noexcept
{
    static const auto real = next<int(const char*, mode_t)>("mkdir");
    const auto call = [&] { return real(path, mode); };
    return isCounted(path) ? made(nextFault("mkdir"), -1, call) : call();
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept
{
    static const auto real = next<ssize_t(const char*, char*, size_t)>("readlink");
    const auto call = [&] { return real(path, target, size); };
    return isCounted(path) ? made<ssize_t>(nextFault("readlink"), -1, call) : call();
}

int stat(const char* path, struct stat* status) noexcept
{
    static const auto real = next<int(const char*, struct stat*)>("stat");
    const auto call = [&] { return real(path, status); };
    return isCounted(path) ? made(nextFault("stat"), -1, call) : call();
}

int lstat(const char* path, struct stat* status) noexcept
{
    static const auto real = next<int(const char*, struct stat*)>("lstat");
    const auto call = [&] { return real(path, status); };
    return isCounted(path) ? made(nextFault("lstat"), -1, call) : call();
}

int fstat(int descriptor, struct stat* status) noexcept
{
    static const auto real = next<int(int, struct stat*)>("fstat");
    const auto call = [&] { return real(descriptor, status); };
    return isCounted(descriptor) ? made(nextFault("fstat"), -1, call) : call();
}

} // extern "C"
