// SPDX-License-Identifier: GPL-3.0-or-later
// Actions run in a process of their own, where they may give up rights or hang.
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

// The action's result (0 to 255). Negative: the number of the signal that ended it, SIGALRM after
// a minute without an end.
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

// The number of the run-time error that the action ends with in a process of its own.
template <class Action> [[nodiscard]] int errorNumberInChildProcess(Action &&action)
{
    return inChildProcess([&] { return int(errorNumberOf(action)); });
}

// The sanitizer looks at the first object of each type with virtual functions through a pipe. That
// has to be before a test takes handles or writing away from the process.
inline void showErrorsToSanitizer()
{
    static_cast<void>(SystemFile::existing("/missing", O_RDONLY));
    try {
        throwFileError(ENOENT, u"/missing"_s);
    } catch (const RunTimeError &error) {
        static_cast<void>(error.number());
    }
}

// From now on the process may open only so many files more at the same time.
inline void allowHandles(rlim_t more)
{
    const int next = dup(0);
    close(next);
    const rlim_t all = rlim_t(next) + more;
    const rlimit limit{all, all};
    setrlimit(RLIMIT_NOFILE, &limit);
}

// Makes permission bits count for root too.
[[nodiscard]] inline bool dropPrivileges()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[2]{};
    return syscall(SYS_capset, &header, none) == 0;
}
