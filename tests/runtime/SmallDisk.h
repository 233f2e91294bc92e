// SPDX-License-Identifier: GPL-3.0-or-later
// A file system of 64 KiB that only this process sees.
#pragma once

#include "runtime/ChildProcess.h"

#include <QDir>
#include <QFile>
#include <QString>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

inline constexpr qsizetype SmallDiskSize = 64 * 1024;

inline bool writeTo(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           file.write(text) == text.size();
}

// Only this process sees it; it is gone when the process ends.
[[nodiscard]] inline bool mountSmallDisk(const QString &folder, const char *options = "size=64k")
{
    const QByteArray user = QByteArray::number(getuid());
    const QByteArray group = QByteArray::number(getgid());
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 &&
           writeTo(u"/proc/self/setgroups"_s, "deny") &&
           writeTo(u"/proc/self/uid_map"_s, "0 " + user + " 1") &&
           writeTo(u"/proc/self/gid_map"_s, "0 " + group + " 1") &&
           mount("none", QFile::encodeName(folder).constData(), "tmpfs", 0, options) == 0;
}

// Not every system lets an ordinary process mount one.
[[nodiscard]] inline bool canMountSmallDisk()
{
    return inChildProcess([] { return int(mountSmallDisk(QDir::tempPath())); }) == 1;
}

// Makes the small disk read-only.
[[nodiscard]] inline bool makeReadOnly(const QString &folder)
{
    return mount("none", QFile::encodeName(folder).constData(), nullptr, MS_REMOUNT | MS_RDONLY,
                 nullptr) == 0;
}
