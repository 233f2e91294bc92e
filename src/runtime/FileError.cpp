// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/FileError.h"

#include <QDir>
#include <QFileDevice>
#include <QFileInfo>

void throwFileError(RunTimeError::Number number, const QString &path, const QString &reason)
{
    throw RunTimeError(number, QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason);
}

RunTimeError::Number fileError(const QFileDevice &file)
{
    return file.error() == QFileDevice::ResourceError ? RunTimeError::DiskFull
                                                      : RunTimeError::PathFileAccess;
}

void throwFileError(const QFileDevice &file, const QString &path)
{
    throwFileError(fileError(file), path, file.errorString());
}

void checkPlaceOfFile(const QString &path)
{
    const QFileInfo file(path);
    if (!file.dir().exists())
        throwFileError(RunTimeError::PathNotFound, path, QStringLiteral("There is no such folder"));
    if (file.isDir())
        throwFileError(RunTimeError::PathFileAccess, path, QStringLiteral("This is a folder"));
    if (file.exists() && !file.isFile())
        throwFileError(RunTimeError::PathFileAccess, path,
                       QStringLiteral("This is not an ordinary file"));
}
