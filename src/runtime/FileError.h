// SPDX-License-Identifier: GPL-3.0-or-later
// What a failure on the disk is called: RunTimeErrors with the path and the system's reason.
#pragma once

#include "runtime/RunTimeError.h"

class QFileDevice;

[[noreturn]] void throwFileError(RunTimeError::Number number, const QString &path,
                                 const QString &reason);
// Of a file that could not be read or written: Disk full or Path/File access error.
[[nodiscard]] RunTimeError::Number fileError(const QFileDevice &file);
[[noreturn]] void throwFileError(const QFileDevice &file, const QString &path);

// Refuses what opening could not serve, or would hang on (a pipe) or replace (a device): Path not
// found or Path/File access error.
void checkPlaceOfFile(const QString &path);
