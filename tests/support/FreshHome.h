// SPDX-License-Identifier: GPL-3.0-or-later
// An empty home folder for one test, as the first start of the program finds it. The destructor
// removes it.
#pragma once

#include <QTemporaryDir>

class FreshHome
{
public:
    FreshHome();
    ~FreshHome() = default;
    Q_DISABLE_COPY_MOVE(FreshHome)

    // The home folder, and a path in it.
    [[nodiscard]] QString home() const { return m_home.path(); }
    [[nodiscard]] QString path(const QString &name) const { return m_home.filePath(name); }

private:
    QTemporaryDir m_home;
};
