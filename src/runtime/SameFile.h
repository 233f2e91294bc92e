// SPDX-License-Identifier: GPL-3.0-or-later
// Whether two paths name one file, however they are spelled: through symbolic or hard links, or
// with a way through another folder. A file that does not exist yet counts by its folder and name.
#pragma once

#include <QString>

// False where a path is empty.
[[nodiscard]] bool isSameFile(const QString &path, const QString &otherPath);
