// SPDX-License-Identifier: GPL-3.0-or-later
// The copies of unsaved lists that lie in the lists' folder.
#pragma once

#include "editor/OpenList.h"
#include "platform/Paths.h"

#include <QDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace UnsavedCopies {

inline QString path(const QString &name)
{
    return pathOf(Place::WordLists) + QLatin1Char('/') + name;
}

inline QStringList names()
{
    return QDir(pathOf(Place::WordLists))
        .entryList({u"*(not saved)*"_s}, QDir::AllEntries | QDir::Hidden | QDir::System,
                   QDir::Name);
}

// Whether the timer of the copy runs.
inline bool isDue(MainWindow &main)
{
    return main.control<QTimer>("tmrUnsavedCopy").isActive();
}

// Waits for at most a second until there is nothing more to write.
[[nodiscard]] inline bool settled(MainWindow &main)
{
    return QTest::qWaitFor([&main] { return !isDue(main); }, 1000);
}

// Waits for at most a second until this is the only copy and holds the entries of the open list.
[[nodiscard]] inline bool comes(const QString &name)
{
    return QTest::qWaitFor(
        [&name] {
            return names() == QStringList{name} && readFile(path(name)) == listBytes(openEntries());
        },
        1000);
}

} // namespace UnsavedCopies
