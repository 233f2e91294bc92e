// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

QString madeFolder(QStandardPaths::StandardLocation location, const QString &name)
{
    QString folder = QStandardPaths::writableLocation(location) + QLatin1Char('/') + name;
    QDir().mkpath(folder);
    return folder;
}

QString userData()
{
    return madeFolder(QStandardPaths::GenericDataLocation, QStringLiteral("Lexibrook"));
}

// A folder that is installed with the program. In a build it is beside the program, and two folders
// above the tests.
QString ownFolder(const QString &installed, const QString &name)
{
    const QDir program(QCoreApplication::applicationDirPath());
    for (const QString &folder : {installed, name, QStringLiteral("../../") + name})
        if (program.exists(folder))
            return QDir::cleanPath(program.filePath(folder));
    return QDir::cleanPath(program.filePath(installed));
}

} // namespace

QString pathOf(Place place)
{
    switch (place) {
    case Place::UserData:
        return userData();
    case Place::InstanceLock:
        return userData() + QStringLiteral("/tanglewit.lock");
    case Place::Top10:
        return userData() + QStringLiteral("/top10.bin");
    case Place::WordLists:
        return madeFolder(QStandardPaths::DocumentsLocation, QStringLiteral("Lexibrook")) +
               QStringLiteral("/MyLists");
    case Place::Audio:
        return ownFolder(QStringLiteral(TANGLEWIT_DATA_FROM_PROGRAM "/Audio"),
                         QStringLiteral("Audio"));
    case Place::Plugins:
        return ownFolder(QStringLiteral(TANGLEWIT_PLUGINS_FROM_PROGRAM), QStringLiteral("plugins"));
    case Place::Handbook:
        return ownFolder(QStringLiteral(TANGLEWIT_HANDBOOK_FROM_PROGRAM),
                         QStringLiteral("share/tanglewit/handbook"));
    }
    return {};
}
