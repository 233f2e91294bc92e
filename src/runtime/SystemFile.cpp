// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/SystemFile.h"

#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace {

template <class Call> auto orThrow(Call &&call)
{
    const auto result = uninterrupted(call);
    if (result < 0)
        throwSystemError();
    return result;
}

} // namespace

void throwSystemError()
{
    throw std::system_error(errno, std::system_category());
}

SystemFile::SystemFile(const QByteArray &name, int flags, mode_t mode)
    : m_descriptor(orThrow([&] { return open(name.constData(), flags | O_CLOEXEC, mode); }))
{
}

SystemFile::~SystemFile()
{
    close(m_descriptor);
}

std::optional<SystemFile> SystemFile::existing(const QByteArray &name, int flags)
{
    try {
        return std::optional<SystemFile>(std::in_place, name, flags);
    } catch (const std::system_error &error) {
        if (error.code().value() != ENOENT)
            throw;
        return std::nullopt;
    }
}

struct stat SystemFile::status() const
{
    struct stat status
    {
    };
    orThrow([&] { return fstat(m_descriptor, &status); });
    return status;
}

void SystemFile::seek(qint64 position) const
{
    orThrow([&] { return lseek(m_descriptor, position, SEEK_SET); });
}

qint64 SystemFile::position() const
{
    return orThrow([&] { return lseek(m_descriptor, 0, SEEK_CUR); });
}

qsizetype SystemFile::read(char *bytes, qsizetype size) const
{
    qsizetype done = 0;
    while (done < size) {
        const auto got =
            orThrow([&] { return ::read(m_descriptor, bytes + done, std::size_t(size - done)); });
        if (got == 0)
            break;
        done += got;
    }
    return done;
}

QByteArray SystemFile::read(qsizetype size) const
{
    QByteArray bytes(size, Qt::Uninitialized);
    bytes.truncate(read(bytes.data(), size));
    return bytes;
}

void SystemFile::write(QByteArrayView bytes) const
{
    while (!bytes.isEmpty()) {
        const auto written =
            orThrow([&] { return ::write(m_descriptor, bytes.data(), std::size_t(bytes.size())); });
        if (written == 0) // trying again would not help
            throw std::system_error(EIO, std::system_category());
        bytes = bytes.sliced(written);
    }
}

void SystemFile::truncate(qint64 size) const
{
    orThrow([&] { return ftruncate(m_descriptor, size); });
}

void SystemFile::flush() const
{
    orThrow([&] { return fsync(m_descriptor); });
}

qint64 SystemFile::nextData(qint64 position) const
{
    const qint64 found = uninterrupted([&] { return lseek(m_descriptor, position, SEEK_DATA); });
    if (found >= 0)
        return found;
    return errno == ENXIO ? status().st_size : position;
}
