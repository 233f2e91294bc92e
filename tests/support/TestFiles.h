// SPDX-License-Identifier: GPL-3.0-or-later
// Files that a test writes and reads without the code under test.
#pragma once

#include "support/Caller.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <random>
#include <sys/stat.h>

inline void writeFile(const QString &path, const QByteArray &bytes,
                      Caller caller = Caller::current())
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        failTest(QLatin1String("cannot write ") + path, caller);
}

[[nodiscard]] inline QByteArray readFile(const QString &path, Caller caller = Caller::current())
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        failTest(QLatin1String("cannot read ") + path, caller);
    return file.readAll();
}

class TestFolder
{
public:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString path() const { return m_folder.path(); }

    QString write(const QString &name, const QByteArray &bytes,
                  Caller caller = Caller::current()) const
    {
        writeFile(path(name), bytes, caller);
        return path(name);
    }

    // "(cannot be read)" where there is no such file.
    [[nodiscard]] QByteArray bytes(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "(cannot be read)";
    }

    // Permission bits of the folder itself.
    [[nodiscard]] bool setMode(mode_t mode) const
    {
        return chmod(QFile::encodeName(path()).constData(), mode) == 0;
    }

    // The sorted names of everything in the folder, with hidden files and broken links.
    [[nodiscard]] QStringList names() const
    {
        return QDir(path()).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

private:
    QTemporaryDir m_folder;
};

// Different bytes for each seed, the same in every run.
[[nodiscard]] inline QByteArray randomBytes(qsizetype size, unsigned seed)
{
    std::mt19937 random(seed);
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random() & 0xFF);
    return bytes;
}
