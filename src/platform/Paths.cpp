// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Paths.h"

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
#ifdef Q_OS_WIN
    const QString folder = QStringLiteral("C:/Program Files/Lexibrook");
    QDir().mkpath(folder);
    return folder;
#else
    return madeFolder(QStandardPaths::GenericDataLocation, QStringLiteral("Lexibrook"));
#endif
}

} // namespace

QString pathOf(Place place)
{
    switch (place) {
    case Place::UserData:
        return userData();
    case Place::InstanceLock:
        return madeFolder(QStandardPaths::GenericDataLocation, QStringLiteral("Lexibrook")) +
               QStringLiteral("/tanglewit.lock");
    case Place::Top10:
        return userData() + QStringLiteral("/top10.bin");
    case Place::WordLists:
        return madeFolder(QStandardPaths::DocumentsLocation, QStringLiteral("Lexibrook")) +
               QStringLiteral("/MyLists");
    }
    return {};
}
