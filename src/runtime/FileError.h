// SPDX-License-Identifier: GPL-3.0-or-later
// The run-time errors of files, with the path and the system's reason.
#pragma once

#include "runtime/RunTimeError.h"

// The number that fits a reason of the system (errno).
[[nodiscard]] RunTimeError::Number fileError(int reason);

// With the number that fits; a file that is missing with its folder is Path not found. `more` is a
// further sentence for the person.
[[noreturn]] void throwFileError(int reason, const QString &path, const QString &more = {});
[[noreturn]] void throwFileError(RunTimeError::Number number, const QString &path,
                                 const QString &reason);

// Throws for anything but a regular file: a folder; a pipe, which would block; a device, which
// would be replaced.
void checkPlaceOfFile(const QString &path);
