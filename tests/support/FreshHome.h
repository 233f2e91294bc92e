// SPDX-License-Identifier: GPL-3.0-or-later
// An empty home folder of the test's own, as a first start finds it. It is gone with the object.
#pragma once

#include <QTemporaryDir>

class FreshHome
{
public:
    FreshHome();
    ~FreshHome() = default;
    Q_DISABLE_COPY_MOVE(FreshHome)

    // The folder that is the person's home, and a path in it.
    [[nodiscard]] QString home() const { return m_home.path(); }
    [[nodiscard]] QString path(const QString &name) const { return m_home.filePath(name); }

private:
    QTemporaryDir m_home;
};
