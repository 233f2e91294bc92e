// SPDX-License-Identifier: GPL-3.0-or-later
// Files opened for binary access: read from the start, written over from their first byte,
// or replaced.
//
// All throw RunTimeError with the number that fits the system's reason (fileError), the path and
// the reason. A folder or a device instead of a file is Path/File access error.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace BinaryFile {

enum class Missing { IsCreated, IsAnError };

// True if this start of the file is all that is needed. Called with a longer start each time.
using IsEnough = std::function<bool(QByteArrayView start)>;

// The start of the file, until isEnough returns true; at most four times as much as needed or 64
// KiB. By default all of it. A missing file is created empty, or is the error File not found.
[[nodiscard]] QByteArray read(const QString &path, const IsEnough &isEnough = {},
                              Missing missing = Missing::IsCreated);

// Leaves the file as if `content` had been written over it from the first byte without
// truncating it: the rest of a longer old file stays. The new file replaces the old one in one step
// and is on the disk when this returns. After an error the old file is whole. The bytes are written
// in place only if no second file can be created in the folder.
void overwrite(const QString &path, QByteArrayView content);

// Replaces the file by one with this content alone, in one step. As above, but it is an error if no
// second file can be created in the folder.
void replace(const QString &path, QByteArrayView content);

} // namespace BinaryFile
