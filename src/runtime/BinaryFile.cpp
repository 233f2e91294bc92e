// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/BinaryFile.h"

#include "runtime/FileError.h"
#include "runtime/UnfinishedFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr qsizetype FirstRead = 1 << 16;
constexpr int Growth = 4;
// Most files need one block of memory only. The part that is not read into takes no memory.
constexpr qsizetype LargestReserve = 1 << 23;
constexpr qsizetype ChunkSize = 1 << 20;

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

QString placeOf(const QString &path)
{
    QString place = withoutLinks(path);
    checkPlaceOfFile(place);
    return place;
}

// Runs the action. If the system refuses something, throws the error with the path.
template <class Action> auto withFileErrors(const QString &path, Action action)
{
    try {
        return action();
    } catch (const std::system_error &error) {
        throwFileError(error.code().value(), path);
    }
}

QByteArray readStart(SystemFile &file, const BinaryFile::IsEnough &isEnough)
{
    // A byte more than the size tells the end. Some files of the system say that they are empty.
    const qint64 toTheEnd = file.status().st_size + 1;
    QByteArray start;
    start.reserve(std::min<qint64>(LargestReserve, toTheEnd));
    for (qint64 wanted = std::min<qint64>(FirstRead, toTheEnd);;) {
        const qsizetype size = start.size();
        start.resize(wanted);
        start.truncate(size + file.read(start.data() + size, wanted - size));
        if (start.size() < wanted || (isEnough && isEnough(start)))
            return start;
        wanted = wanted < toTheEnd ? std::min(Growth * wanted, toTheEnd) : Growth * wanted;
    }
}

// Parts of the old file that were never written are skipped: copying them takes neither time nor
// room on the disk.
void copyRest(SystemFile &from, SystemFile &to, qint64 position)
{
    const qint64 size = from.status().st_size;
    if (size <= position)
        return;
    while ((position = from.nextData(position)) < size) {
        from.seek(position);
        to.seek(position);
        const QByteArray chunk = from.read(ChunkSize);
        if (chunk.isEmpty())
            break;
        to.write(chunk);
        position += chunk.size();
    }
    to.truncate(size);
}

// The part of the old file after the length of the new content.
enum class OldTail { Stays, Goes };

void writeSecondFile(const QString &place, QByteArrayView content, OldTail tail)
{
    auto oldFile = SystemFile::existing(QFile::encodeName(place), O_RDWR);
    UnfinishedFile newFile(place, oldFile ? &*oldFile : nullptr);
    newFile.file().write(content);
    if (oldFile && tail == OldTail::Stays)
        copyRest(*oldFile, newFile.file(), content.size());
    oldFile.reset();
    newFile.takePlace();
}

// Writes the old start and the old size back. False if this fails, too.
bool putBack(SystemFile &file, qint64 size, const QByteArray &start)
{
    try {
        const qint64 written = file.position();
        file.truncate(size);
        file.seek(0);
        file.write(start.first(std::min(start.size(), written)));
        file.flush();
        return true;
    } catch (const std::system_error &) {
        return false;
    }
}

void writeOver(const QString &path, SystemFile &file, QByteArrayView content)
{
    const qint64 oldSize = file.status().st_size;
    const QByteArray oldStart = file.read(content.size());
    try {
        file.seek(0);
        file.write(content);
        file.flush();
    } catch (const std::system_error &error) {
        throwFileError(error.code().value(), path,
                       putBack(file, oldSize, oldStart)
                           ? QString()
                           : QStringLiteral("The old content could not be put back"));
    }
}

// For a folder in which no second file can be created. If the new bytes do not fit, the old ones
// are written back.
void writeInPlace(const QString &path, const QString &place, QByteArrayView content)
{
    const QByteArray name = QFile::encodeName(place);
    if (auto file = SystemFile::existing(name, O_RDWR)) {
        writeOver(path, *file, content);
        return;
    }
    SystemFile file(name, O_RDWR | O_CREAT | O_EXCL, 0666);
    try {
        writeOver(path, file, content);
    } catch (const RunTimeError &) {
        unlink(name.constData());
        throw;
    }
}

} // namespace

QByteArray BinaryFile::read(const QString &path, const IsEnough &isEnough, Missing missing)
{
    const QByteArray name = QFile::encodeName(placeOf(path));
    return withFileErrors(path, [&] {
        auto file = SystemFile::existing(name, O_RDONLY);
        if (!file && missing == Missing::IsAnError)
            throwFileError(ENOENT, path);
        if (!file)
            file.emplace(name, O_RDWR | O_CREAT, 0666);
        return readStart(*file, isEnough);
    });
}

void BinaryFile::overwrite(const QString &path, QByteArrayView content)
{
    const QString place = placeOf(path);
    withFileErrors(path, [&] {
        try {
            writeSecondFile(place, content, OldTail::Stays);
        } catch (const NoSecondFile &) {
            writeInPlace(path, place, content);
        }
    });
}

void BinaryFile::replace(const QString &path, QByteArrayView content)
{
    const QString place = placeOf(path);
    withFileErrors(path, [&] { writeSecondFile(place, content, OldTail::Goes); });
}
