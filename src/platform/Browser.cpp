// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Browser.h"

#include <QDesktopServices>
#include <QFile>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

namespace {

// Editors and office programs, too, say that they open "text/html".
bool listsBrowser(const QString &folderOfDesktopEntries)
{
    QFile cache(folderOfDesktopEntries + QStringLiteral("/mimeinfo.cache"));
    if (!cache.open(QIODevice::ReadOnly))
        return false;
    while (!cache.atEnd())
        if (cache.readLine().startsWith("x-scheme-handler/http="))
            return true;
    return false;
}

// QDesktopServices calls xdg-open, which does not say in time that it knows no browser.
bool hasBrowser()
{
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    return !QStandardPaths::findExecutable(QStringLiteral("x-www-browser")).isEmpty() ||
           std::any_of(folders.begin(), folders.end(), listsBrowser);
}

} // namespace

bool openInBrowser(const QString &file)
{
    return hasBrowser() && QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}
