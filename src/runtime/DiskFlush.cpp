// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/DiskFlush.h"

#include <QFile>
#include <QFileDevice>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

bool flushToDisk(QFileDevice &file)
{
    if (!file.flush())
        return false;
#ifdef Q_OS_WIN
    return _commit(file.handle()) == 0;
#else
    return fsync(file.handle()) == 0;
#endif
}

void flushFolderToDisk(const QString &folder)
{
#ifdef Q_OS_WIN
    Q_UNUSED(folder)
#else
    const int handle =
        open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
#endif
}
