// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SampleLists.h"

#include "runtime/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

void installSampleLists(const QString &folder)
{
    if (QDir(folder).exists())
        return;
    const auto check = [&folder](bool done) {
        if (!done)
            throw RunTimeError(RunTimeError::PathFileAccess, QDir::toNativeSeparators(folder));
    };
    // Filled beside its place and then renamed, so that a start that is cut short starts afresh.
    QTemporaryDir unfinished(folder + QStringLiteral("XXXXXX"));
    check(unfinished.isValid());
    const QDir samples(QStringLiteral(":/lists"));
    const QStringList names = samples.entryList(QDir::Files);
    for (const QString &name : names) {
        const QString copy = unfinished.filePath(name);
        check(QFile::copy(samples.filePath(name), copy));
        check(QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                              QFile::ReadOther));
    }
    check(QFile::setPermissions(unfinished.path(), QFile::ReadOwner | QFile::WriteOwner |
                                                       QFile::ExeOwner | QFile::ReadGroup |
                                                       QFile::ExeGroup | QFile::ReadOther |
                                                       QFile::ExeOther));
    check(QDir().rename(unfinished.path(), folder));
    unfinished.setAutoRemove(false);
}
