// SPDX-License-Identifier: GPL-3.0-or-later
// Runs an action in a child process, where it may give up rights or hang.
#pragma once

#include "runtime/ErrorNumber.h"
#include "runtime/FileError.h"
#include "runtime/SystemFile.h"

#include <fcntl.h>
#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

// The result of the action (0 to 255), or minus the number of the signal that ended the child:
// SIGALRM after a minute.
template <class Action> [[nodiscard]] int inChildProcess(Action &&action)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(60);
        int result = 255;
        try {
            result = action();
        } catch (...) {
        }
        _exit(result);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        return 255;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

// The number of the run-time error with which the action ends in a child process.
template <class Action> [[nodiscard]] int errorNumberInChildProcess(Action &&action)
{
    return inChildProcess([&] { return int(errorNumberOf(action)); });
}

// The sanitizer needs a pipe when it sees a type with virtual functions for the first time. So this
// comes before a test takes file handles or writing away from the process.
inline void showErrorsToSanitizer()
{
    static_cast<void>(SystemFile::existing("/missing", O_RDONLY));
    try {
        throwFileError(ENOENT, u"/missing"_s);
    } catch (const RunTimeError &error) {
        static_cast<void>(error.number());
    }
}

// From now on the process can have only this many more files open at a time.
inline void allowHandles(rlim_t more)
{
    const int next = dup(0);
    close(next);
    const rlim_t all = rlim_t(next) + more;
    const rlimit limit{all, all};
    setrlimit(RLIMIT_NOFILE, &limit);
}

// Permissions apply from now on, even if the user is root.
[[nodiscard]] inline bool dropPrivileges()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[2]{};
    return syscall(SYS_capset, &header, none) == 0;
}
