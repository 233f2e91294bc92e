// SPDX-License-Identifier: GPL-3.0-or-later
// While the object exists, no file of this process can grow beyond a size, as on a full disk.
#pragma once

#include "support/Caller.h"

#include <sys/resource.h>

class SmallFiles
{
public:
    explicit SmallFiles(rlim_t bytes, Caller caller = Caller::current())
    {
        const bool isKnown = getrlimit(RLIMIT_FSIZE, &m_before) == 0;
        const rlimit limit{bytes, m_before.rlim_max};
        if (!isKnown || setrlimit(RLIMIT_FSIZE, &limit) != 0)
            failTest(QLatin1String("the size of files cannot be limited"), caller);
    }
    ~SmallFiles() { setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(SmallFiles)

private:
    rlimit m_before{};
};
