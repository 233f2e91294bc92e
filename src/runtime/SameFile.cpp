// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/SameFile.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace {

std::filesystem::path toStdPath(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

} // namespace

bool isSameFile(const QString &path, const QString &otherPath)
{
    if (path.isEmpty() || otherPath.isEmpty())
        return false;
    std::error_code missing;
    if (std::filesystem::equivalent(toStdPath(path), toStdPath(otherPath), missing))
        return true;
    const QFileInfo file(path);
    const QFileInfo other(otherPath);
    return file.fileName() == other.fileName() &&
           QFileInfo(file.absolutePath()) == QFileInfo(other.absolutePath());
}
