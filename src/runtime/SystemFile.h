// SPDX-License-Identifier: GPL-3.0-or-later
// An open file of the operating system.
//
// A call that a signal interrupts is repeated. If the system refuses a call, std::system_error with
// the reason (errno) is thrown. A const function can change the file, but not which file it is.
#pragma once

#include <QByteArray>

#include <cerrno>
#include <optional>
#include <sys/stat.h>

// The result of a call of the system, made again as long as a signal interrupts it.
template <class Call> auto uninterrupted(Call &&call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

[[noreturn]] void throwSystemError();

class SystemFile
{
public:
    // Flags as of open(2); `mode` is for a file that is made.
    SystemFile(const QByteArray &name, int flags, mode_t mode = 0);
    ~SystemFile();
    Q_DISABLE_COPY_MOVE(SystemFile)

    // Nothing where there is no such file.
    [[nodiscard]] static std::optional<SystemFile> existing(const QByteArray &name, int flags);

    [[nodiscard]] int descriptor() const { return m_descriptor; }
    [[nodiscard]] struct stat status() const;

    void seek(qint64 position) const;
    [[nodiscard]] qint64 position() const;
    // Returns how many bytes were read: fewer than `size` only at the end of the file.
    [[nodiscard]] qsizetype read(char *bytes, qsizetype size) const;
    [[nodiscard]] QByteArray read(qsizetype size) const;
    void write(QByteArrayView bytes) const;
    void truncate(qint64 size) const;
    // Makes the system put on the disk what was written.
    void flush() const;

    // The position of the first data at or after `position`, or the size of the file if only a hole
    // follows. The position itself on file systems without holes.
    [[nodiscard]] qint64 nextData(qint64 position) const;

private:
    int m_descriptor;
};
