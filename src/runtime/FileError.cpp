// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/FileError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

RunTimeError::Number fileError(int reason)
{
    switch (reason) {
    case EINVAL:
    case EILSEQ:
    case ENAMETOOLONG:
        return RunTimeError::BadFileName;
    case ENOENT:
        return RunTimeError::FileNotFound;
    case EIO:
        return RunTimeError::DeviceIoError;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return RunTimeError::DiskFull;
    case EMFILE:
    case ENFILE:
        return RunTimeError::TooManyFiles;
    case EACCES:
    case EPERM:
    case EROFS:
        return RunTimeError::PermissionDenied;
    case ENOTDIR:
        return RunTimeError::PathNotFound;
    default:
        return RunTimeError::PathFileAccess;
    }
}

void throwFileError(int reason, const QString &path, const QString &more)
{
    const bool noFolder = reason == ENOENT && !QFileInfo(path).dir().exists();
    QString text = qt_error_string(reason);
    if (!more.isEmpty())
        text += QStringLiteral(". ") + more;
    throwFileError(noFolder ? RunTimeError::PathNotFound : fileError(reason), path, text);
}

void throwFileError(RunTimeError::Number number, const QString &path, const QString &reason)
{
    throw RunTimeError(number, QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason);
}

void checkPlaceOfFile(const QString &path)
{
    // The system would take the name only as far as that.
    if (path.contains(QChar(0)))
        throwFileError(EINVAL, path);
    struct stat status
    {
    };
    if (stat(QFile::encodeName(path).constData(), &status) != 0) {
        const int reason = errno;
        if (reason != ENOENT)
            throwFileError(reason, path);
        if (!QFileInfo(path).dir().exists())
            throwFileError(RunTimeError::PathNotFound, path,
                           QStringLiteral("There is no such folder"));
        return;
    }
    if (S_ISDIR(status.st_mode))
        throwFileError(RunTimeError::PathFileAccess, path, QStringLiteral("This is a folder"));
    if (!S_ISREG(status.st_mode))
        throwFileError(RunTimeError::PathFileAccess, path,
                       QStringLiteral("This is not an ordinary file"));
}
