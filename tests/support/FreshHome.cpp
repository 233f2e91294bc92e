// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/FreshHome.h"

#include "support/Caller.h"

#include <QDir>
#include <QSettings>

using namespace Qt::StringLiterals;

FreshHome::FreshHome()
{
    if (!m_home.isValid())
        failTest(m_home.errorString());
    const auto place = [this](const char *variable, const QString &folder) {
        const QString path = this->path(folder);
        QDir().mkpath(path);
        qputenv(variable, QFile::encodeName(path));
    };
    place("HOME", u"."_s);
    place("XDG_DATA_HOME", u".local/share"_s);
    place("XDG_CONFIG_HOME", u".config"_s);
    place("XDG_CACHE_HOME", u".cache"_s);
    // The file dialog stores its state there.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, path(u".config"_s));
}
