// SPDX-License-Identifier: GPL-3.0-or-later
// What a failure on the disk is called: RunTimeErrors with the path and the system's reason.
#pragma once

#include "runtime/RunTimeError.h"

// The number that fits a reason of the system (errno).
[[nodiscard]] RunTimeError::Number fileError(int reason);

// With the number that fits; a file that is missing with its folder is Path not found. `more` is a
// further sentence for the person.
[[noreturn]] void throwFileError(int reason, const QString &path, const QString &more = {});
[[noreturn]] void throwFileError(RunTimeError::Number number, const QString &path,
                                 const QString &reason);

// Refuses what opening could not serve, or would hang on (a pipe) or replace (a device).
void checkPlaceOfFile(const QString &path);
