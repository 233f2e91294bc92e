// SPDX-License-Identifier: GPL-3.0-or-later
// Files opened for binary access: read whole, written over from their first byte.
//
// Both throw RunTimeError with the path and the system's reason: Path not found (no such folder),
// Permission denied, Disk full, Path/File access error (a folder or a device in the file's
// place, any other failure).
#pragma once

#include <QByteArray>
#include <QString>

#include <limits>

namespace BinaryFile {

enum class Missing { IsCreated, IsAnError };

// The content, as far as its first maxSize bytes. A missing file is created empty, or is the error
// File not found.
[[nodiscard]] QByteArray read(const QString &path,
                              qint64 maxSize = std::numeric_limits<qint64>::max(),
                              Missing missing = Missing::IsCreated);

// Leaves the file as if `content` had been written over it from the first byte without
// truncating it: what an older, longer file held beyond stays. The new file takes the old one's
// place in one step and is on the disk when this returns; on an error the old file is whole.
void overwrite(const QString &path, QByteArrayView content);

} // namespace BinaryFile
