// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/BinaryFile.h"

#include "runtime/DiskFlush.h"
#include "runtime/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

namespace {

constexpr qint64 ChunkSize = 1 << 20;

[[noreturn]] void fail(RunTimeError::Number number, const QString &path, const QString &reason)
{
    throw RunTimeError(number, QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason);
}

[[noreturn]] void fail(const QFileDevice &file, const QString &path)
{
    const bool diskFull = file.error() == QFileDevice::ResourceError;
    fail(diskFull ? RunTimeError::DiskFull : RunTimeError::PathFileAccess, path,
         file.errorString());
}

// Refuses what opening could not serve, or would hang on (a pipe) or replace (a device).
void checkPlace(const QString &path)
{
    const QFileInfo file(path);
    if (!file.dir().exists())
        fail(RunTimeError::PathNotFound, path, QStringLiteral("There is no such folder"));
    if (file.isDir())
        fail(RunTimeError::PathFileAccess, path, QStringLiteral("This is a folder"));
    if (file.exists() && !file.isFile())
        fail(RunTimeError::PathFileAccess, path, QStringLiteral("This is not an ordinary file"));
}

// The file that a chain of symbolic links ends at, existing or not.
QString withoutLinks(const QString &path)
{
    QString target = path;
    for (int links = 0; links < 40 && QFileInfo(target).isSymLink(); ++links)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

void copyRest(QFile &from, QFileDevice &to, qint64 position, const QString &path)
{
    if (!from.isOpen() || from.size() <= position)
        return;
    if (!from.seek(position))
        fail(from, path);
    while (!from.atEnd()) {
        const QByteArray chunk = from.read(ChunkSize);
        if (from.error() != QFileDevice::NoError)
            fail(from, path);
        if (to.write(chunk) != chunk.size())
            fail(to, path);
    }
}

void write(QFileDevice &file, QByteArrayView content, const QString &path)
{
    if (file.write(content.data(), content.size()) != content.size())
        fail(file, path);
}

void flush(QFileDevice &file, const QString &path)
{
    if (!flushToDisk(file)) {
        const bool diskFull = errno == ENOSPC || file.error() == QFileDevice::ResourceError;
        fail(diskFull ? RunTimeError::DiskFull : RunTimeError::PathFileAccess, path,
             QStringLiteral("The disk did not take the file"));
    }
}

// For a folder that admits no second file: the old bytes are put back if the new ones do not fit.
void writeInPlace(QFile &file, QByteArrayView content, const QString &path)
{
    const qint64 oldSize = file.size();
    const QByteArray oldStart = file.read(content.size());
    try {
        if (!file.seek(0))
            fail(file, path);
        write(file, content, path);
        flush(file, path);
    } catch (const RunTimeError &) {
        file.seek(0);
        file.write(oldStart);
        file.resize(oldSize);
        file.flush();
        throw;
    }
}

} // namespace

QByteArray BinaryFile::read(const QString &path, Missing missing)
{
    checkPlace(path);
    QFile file(path);
    const bool exists = file.exists();
    if (!exists && missing == Missing::IsAnError)
        fail(RunTimeError::FileNotFound, path, QStringLiteral("There is no such file"));
    if (!file.open(exists ? QIODevice::ReadOnly : QIODevice::ReadWrite))
        fail(RunTimeError::PermissionDenied, path, file.errorString());
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        fail(file, path);
    return content;
}

void BinaryFile::overwrite(const QString &path, QByteArrayView content)
{
    const QString target = withoutLinks(path);
    checkPlace(target);
    QFile oldFile(target);
    const bool exists = oldFile.exists();
    if (exists && !oldFile.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        fail(RunTimeError::PermissionDenied, path, oldFile.errorString());

    QSaveFile newFile(target);
    if (!newFile.open(QIODevice::WriteOnly)) {
        if (!exists)
            fail(RunTimeError::PermissionDenied, path, newFile.errorString());
        writeInPlace(oldFile, content, path);
        return;
    }
    write(newFile, content, path);
    copyRest(oldFile, newFile, content.size(), path);
    flush(newFile, path);
    oldFile.close();
    if (!newFile.commit())
        fail(newFile, path);
    flushFolderToDisk(QFileInfo(target).absolutePath());
}
