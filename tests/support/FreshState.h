// SPDX-License-Identifier: GPL-3.0-or-later
// What a first start finds: an empty home folder of its own and globals at their beginnings.
// Everything is gone with the object.
#pragma once

#include <QTemporaryDir>

class FreshState final
{
public:
    FreshState();
    ~FreshState();
    Q_DISABLE_COPY_MOVE(FreshState)

    // The folder that stands for the person's home, and a path in it.
    [[nodiscard]] QString home() const { return m_home.path(); }
    [[nodiscard]] QString path(const QString &name) const { return m_home.filePath(name); }

private:
    QTemporaryDir m_home;
};
