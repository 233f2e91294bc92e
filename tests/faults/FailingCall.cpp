// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/FailingCall.h"

#include <QFile>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

using Function = FailingCall::Function;

namespace {

// Does not use Qt, because Qt calls these functions.
struct State
{
    bool active = false;
    pthread_t thread{};
    char folder[4096] = {};
    FailingCall::Fault fault;
    int calls = 0;
    bool hasFailed = false;
    bool wasOnFolder = false;
};

State state;

bool isBelowFolder(const char *path)
{
    return path && std::strncmp(path, state.folder, std::strlen(state.folder)) == 0;
}

bool isFolder(const char *path)
{
    struct stat status
    {
    };
    return stat(path, &status) == 0 && S_ISDIR(status.st_mode);
}

// Counts the call. Returns true, with errno set, if it must fail.
bool fails(Function function, const char *path)
{
    if (!state.active || function != state.fault.function ||
        !pthread_equal(state.thread, pthread_self()) || !isBelowFolder(path))
        return false;
    ++state.calls;
    if (state.fault.lasting == FailingCall::Lasting::Once ? state.calls != state.fault.number
                                                          : state.calls < state.fault.number)
        return false;
    if (!state.hasFailed)
        state.wasOnFolder = isFolder(path);
    state.hasFailed = true;
    errno = state.fault.reason;
    return true;
}

bool fails(Function function, int file)
{
    if (!state.active || function != state.fault.function)
        return false;
    char link[64];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    char path[4096];
    const ssize_t length = readlink(link, path, sizeof path - 1);
    if (length < 0)
        return false;
    path[length] = '\0';
    return fails(function, path);
}

// The function of the C library that this file replaces.
template <class Call> Call *original(const char *name)
{
    void *const found = dlsym(RTLD_NEXT, name);
    Call *call = nullptr;
    std::memcpy(&call, &found, sizeof call);
    return call;
}

} // namespace

FailingCall::FailingCall(const QString &folder, const Fault &fault)
{
    state = {};
    const QByteArray path = QFile::encodeName(folder);
    std::strncpy(state.folder, path.constData(), sizeof state.folder - 1);
    state.fault = fault;
    state.thread = pthread_self();
    state.active = true;
}

FailingCall::~FailingCall()
{
    state.active = false;
}

bool FailingCall::hasFailed() const
{
    return state.hasFailed;
}

bool FailingCall::wasOnFolder() const
{
    return state.wasOnFolder;
}

const char *nameOf(Function function)
{
    switch (function) {
    case Function::Open:
        return "open";
    case Function::Read:
        return "read";
    case Function::Write:
        return "write";
    case Function::Fsync:
        return "fsync";
    case Function::Close:
        return "close";
    case Function::Rename:
        return "rename";
    case Function::Link:
        return "link";
    case Function::Unlink:
        return "unlink";
    case Function::Ftruncate:
        return "ftruncate";
    case Function::Fchmod:
        return "fchmod";
    case Function::Fchown:
        return "fchown";
    case Function::Mkdir:
        return "mkdir";
    }
    return "";
}

extern "C" {

int open(const char *path, int flags, ...)
{
    static auto *const next = original<int(const char *, int, mode_t)>("open");
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t); // used only if the flags need it
    va_end(arguments);
    return fails(Function::Open, path) ? -1 : next(path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    static auto *const next = original<int(const char *, int, mode_t)>("open64");
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t); // used only if the flags need it
    va_end(arguments);
    return fails(Function::Open, path) ? -1 : next(path, flags, mode);
}

int openat(int folder, const char *path, int flags, ...)
{
    static auto *const next = original<int(int, const char *, int, mode_t)>("openat");
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t); // used only if the flags need it
    va_end(arguments);
    const bool failed = fails(Function::Open, path) || fails(Function::Open, folder);
    return failed ? -1 : next(folder, path, flags, mode);
}

ssize_t read(int file, void *bytes, size_t size)
{
    static auto *const next = original<ssize_t(int, void *, size_t)>("read");
    return fails(Function::Read, file) ? -1 : next(file, bytes, size);
}

ssize_t write(int file, const void *bytes, size_t size)
{
    static auto *const next = original<ssize_t(int, const void *, size_t)>("write");
    if (!fails(Function::Write, file))
        return next(file, bytes, size);
    return state.fault.reason == FailingCall::StopsShort ? next(file, bytes, (size + 1) / 2) : -1;
}

ssize_t sendfile(int to, int from, off_t *offset, size_t size) noexcept
{
    static auto *const next = original<ssize_t(int, int, off_t *, size_t)>("sendfile");
    return fails(Function::Write, to) ? -1 : next(to, from, offset, size);
}

// No flush: the tests look at the files of a running system, and a flush takes long.
int fsync(int file)
{
    return fails(Function::Fsync, file) ? -1 : 0;
}

int fdatasync(int file)
{
    return fails(Function::Fsync, file) ? -1 : 0;
}

int close(int file)
{
    static auto *const next = original<int(int)>("close");
    const bool failed = fails(Function::Close, file);
    const int result = next(file);
    if (failed)
        errno = state.fault.reason;
    return failed ? -1 : result;
}

int rename(const char *from, const char *to) noexcept
{
    static auto *const next = original<int(const char *, const char *)>("rename");
    return fails(Function::Rename, to) ? -1 : next(from, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
              unsigned flags) noexcept
{
    static auto *const next =
        original<int(int, const char *, int, const char *, unsigned)>("renameat2");
    return fails(Function::Rename, to) ? -1 : next(fromFolder, from, toFolder, to, flags);
}

int link(const char *from, const char *to) noexcept
{
    static auto *const next = original<int(const char *, const char *)>("link");
    return fails(Function::Link, to) ? -1 : next(from, to);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    static auto *const next = original<int(int, const char *, int, const char *, int)>("linkat");
    return fails(Function::Link, to) ? -1 : next(fromFolder, from, toFolder, to, flags);
}

int unlink(const char *path) noexcept
{
    static auto *const next = original<int(const char *)>("unlink");
    return fails(Function::Unlink, path) ? -1 : next(path);
}

int rmdir(const char *path) noexcept
{
    static auto *const next = original<int(const char *)>("rmdir");
    return fails(Function::Unlink, path) ? -1 : next(path);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    static auto *const next = original<int(const char *, mode_t)>("mkdir");
    return fails(Function::Mkdir, path) ? -1 : next(path, mode);
}

int ftruncate(int file, off_t size) noexcept
{
    static auto *const next = original<int(int, off_t)>("ftruncate");
    return fails(Function::Ftruncate, file) ? -1 : next(file, size);
}

int ftruncate64(int file, off64_t size) noexcept
{
    static auto *const next = original<int(int, off64_t)>("ftruncate64");
    return fails(Function::Ftruncate, file) ? -1 : next(file, size);
}

int fchmod(int file, mode_t mode) noexcept
{
    static auto *const next = original<int(int, mode_t)>("fchmod");
    return fails(Function::Fchmod, file) ? -1 : next(file, mode);
}

int chmod(const char *path, mode_t mode) noexcept
{
    static auto *const next = original<int(const char *, mode_t)>("chmod");
    return fails(Function::Fchmod, path) ? -1 : next(path, mode);
}

int fchown(int file, uid_t user, gid_t group) noexcept
{
    static auto *const next = original<int(int, uid_t, gid_t)>("fchown");
    return fails(Function::Fchown, file) ? -1 : next(file, user, group);
}

} // extern "C"
