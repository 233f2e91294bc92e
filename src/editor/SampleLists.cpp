// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SampleLists.h"

#include "runtime/BinaryFile.h"
#include "runtime/FileError.h"

#include <QDir>
#include <QFile>

#include <filesystem>
#include <system_error>

namespace {

std::filesystem::path systemPath(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

// Repeats the step as long as a signal interrupts it.
template <class Step> void uninterruptedStep(Step step)
{
    std::error_code error;
    do {
        error.clear();
        step(error);
    } while (error == std::errc::interrupted);
    if (error)
        throw std::filesystem::filesystem_error({}, error);
}

QByteArray contentOf(const QString &resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void fill(const QString &folder)
{
    uninterruptedStep([&](std::error_code &error) {
        std::filesystem::create_directories(systemPath(folder), error);
    });
    const QDir samples(QStringLiteral(":/lists"));
    const QStringList names = samples.entryList(QDir::Files);
    for (const QString &name : names)
        BinaryFile::overwrite(QDir(folder).filePath(name), contentOf(samples.filePath(name)));
}

} // namespace

void installSampleLists(const QString &folder)
{
    if (QDir(folder).exists())
        return;
    // Filled under another name and then renamed. What an interrupted start left is filled again.
    const QString unfinished = folder + QStringLiteral(".new");
    try {
        fill(unfinished);
        uninterruptedStep([&](std::error_code &error) {
            std::filesystem::rename(systemPath(unfinished), systemPath(folder), error);
        });
    } catch (const std::filesystem::filesystem_error &error) {
        QDir(unfinished).removeRecursively();
        throwFileError(error.code().value(), folder);
    } catch (const RunTimeError &) {
        QDir(unfinished).removeRecursively();
        throw;
    }
}
