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
    const auto check = [&folder](bool done, const QString &reason) {
        if (!done)
            throw RunTimeError(RunTimeError::PathFileAccess,
                               QDir::toNativeSeparators(folder) + QStringLiteral(": ") + reason);
    };
    // Filled beside its place and then renamed, so that a start that is cut short starts afresh.
    QTemporaryDir unfinished(folder + QStringLiteral("XXXXXX"));
    check(unfinished.isValid(), unfinished.errorString());
    const QDir samples(QStringLiteral(":/lists"));
    const QStringList names = samples.entryList(QDir::Files);
    for (const QString &name : names) {
        QFile sample(samples.filePath(name));
        check(sample.copy(unfinished.filePath(name)), sample.errorString());
        // Copies of resources are read-only.
        QFile::setPermissions(unfinished.filePath(name), QFile::ReadOwner | QFile::WriteOwner |
                                                             QFile::ReadGroup | QFile::ReadOther);
    }
    QFile::setPermissions(unfinished.path(), QFile::ReadOwner | QFile::WriteOwner |
                                                 QFile::ExeOwner | QFile::ReadGroup |
                                                 QFile::ExeGroup | QFile::ReadOther |
                                                 QFile::ExeOther);
    check(QDir().rename(unfinished.path(), folder), QStringLiteral("It cannot be made"));
    unfinished.setAutoRemove(false);
}
