// SPDX-License-Identifier: GPL-3.0-or-later
// Whether two paths lead to the same file, also through symbolic or hard links or another folder. A
// file that does not exist is compared by its folder and name.
#pragma once

#include <QString>

// False where a path is empty.
[[nodiscard]] bool isSameFile(const QString &path, const QString &otherPath);
