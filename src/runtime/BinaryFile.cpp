// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/BinaryFile.h"

#include "runtime/DiskFlush.h"
#include "runtime/FileError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>

namespace {

constexpr qint64 ChunkSize = 1 << 20;

bool isDiskFull(int systemError)
{
#ifdef EDQUOT
    if (systemError == EDQUOT)
        return true;
#endif
    return systemError == ENOSPC;
}

// The file that a chain of symbolic links ends at, existing or not.
QString withoutLinks(const QString &path)
{
    QString existing = QFileInfo(path).canonicalFilePath();
    if (!existing.isEmpty())
        return existing;
    QString target = path;
    for (int links = 0; links < 40 && QFileInfo(target).isSymLink(); ++links)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

// A write that stops short gives no reason; the next one does.
void write(QFileDevice &file, QByteArrayView content, const QString &path)
{
    while (!content.isEmpty()) {
        const qint64 written = file.write(content.data(), content.size());
        if (written <= 0)
            throwFileError(file, path);
        content = content.sliced(written);
    }
}

void copyRest(QFile &from, QFileDevice &to, qint64 position, const QString &path)
{
    if (!from.isOpen() || from.size() <= position)
        return;
    if (!from.seek(position))
        throwFileError(from, path);
    while (!from.atEnd()) {
        const QByteArray chunk = from.read(ChunkSize);
        if (from.error() != QFileDevice::NoError)
            throwFileError(from, path);
        write(to, chunk, path);
    }
}

void flush(QFileDevice &file, const QString &path)
{
    if (flushToDisk(file))
        return;
    const int reason = errno;
    throwFileError(isDiskFull(reason) || file.error() == QFileDevice::ResourceError
                       ? RunTimeError::DiskFull
                       : RunTimeError::PathFileAccess,
                   path, qt_error_string(reason));
}

// For a folder that admits no second file: the old bytes are put back if the new ones do not fit.
// Unbuffered, for bytes that the disk refused would stay in a buffer and come again.
void writeInPlace(const QString &target, QByteArrayView content, const QString &path)
{
    QFile file(target);
    const bool exists = file.exists();
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        throwFileError(RunTimeError::PermissionDenied, path, file.errorString());
    const qint64 oldSize = file.size();
    const QByteArray oldStart = file.read(content.size());
    try {
        if (!file.seek(0))
            throwFileError(file, path);
        write(file, content, path);
        flush(file, path);
    } catch (const RunTimeError &) {
        file.seek(0);
        file.write(oldStart);
        file.resize(oldSize);
        static_cast<void>(flushToDisk(file));
        if (!exists)
            file.remove();
        throw;
    }
}

} // namespace

QByteArray BinaryFile::read(const QString &path, qint64 maxSize, Missing missing)
{
    const QString target = withoutLinks(path);
    checkPlaceOfFile(target);
    QFile file(target);
    const bool exists = file.exists();
    if (!exists && missing == Missing::IsAnError)
        throwFileError(RunTimeError::FileNotFound, path, QStringLiteral("There is no such file"));
    if (!file.open(exists ? QIODevice::ReadOnly : QIODevice::ReadWrite))
        throwFileError(RunTimeError::PermissionDenied, path, file.errorString());
    QByteArray content = file.read(std::min(file.size(), maxSize));
    if (file.error() != QFileDevice::NoError)
        throwFileError(file, path);
    return content;
}

void BinaryFile::overwrite(const QString &path, QByteArrayView content)
{
    const QString target = withoutLinks(path);
    checkPlaceOfFile(target);
    QFile oldFile(target);
    const bool exists = oldFile.exists();
    if (exists && !oldFile.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        throwFileError(RunTimeError::PermissionDenied, path, oldFile.errorString());

    QSaveFile newFile(target);
    if (!newFile.open(QIODevice::WriteOnly)) {
        if (!exists)
            throwFileError(RunTimeError::PermissionDenied, path, newFile.errorString());
        oldFile.close();
        writeInPlace(target, content, path);
        return;
    }
    write(newFile, content, path);
    copyRest(oldFile, newFile, content.size(), path);
    flush(newFile, path);
    oldFile.close();
    // The name may be too long for a second one beside it, or the folder's rights refuse the swap.
    if (!newFile.commit())
        writeInPlace(target, content, path);
    flushFolderToDisk(QFileInfo(target).absolutePath());
}
