// SPDX-License-Identifier: GPL-3.0-or-later
// Files opened for binary access: read from the start, written over from their first byte,
// or replaced.
//
// All throw RunTimeError with the path and the system's reason, under the number that fits that
// (fileError); a folder or a device in the file's place is Path/File access error.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace BinaryFile {

enum class Missing { IsCreated, IsAnError };

// Tells from the start of a file whether that is all that is wanted of it. Called with a longer
// start each time.
using IsEnough = std::function<bool(QByteArrayView start)>;

// The start of the file, as far as isEnough wants it, at most four times as much or 64 KiB; by
// default all of it. A missing file is created empty, or is the error File not found.
[[nodiscard]] QByteArray read(const QString &path, const IsEnough &isEnough = {},
                              Missing missing = Missing::IsCreated);

// Leaves the file as if `content` had been written over it from the first byte without
// truncating it: what an older, longer file held beyond stays. The new file takes the old one's
// place in one step and is on the disk when this returns; on an error the old file is whole. Only
// where the folder admits no second file are the bytes written in place.
void overwrite(const QString &path, QByteArrayView content);

// Puts a file with this content alone in the file's place, in one step. Otherwise as above, except
// that a folder that admits no second file is an error.
void replace(const QString &path, QByteArrayView content);

} // namespace BinaryFile
