// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the system put on the disk what was written so far.
#pragma once

class QFileDevice;
class QString;

// False where the disk refuses, with errno set.
[[nodiscard]] bool flushToDisk(QFileDevice &file);

// Makes a file's new name in the folder as durable as its content. Systems without such an
// operation have nothing to do here.
void flushFolderToDisk(const QString &folder);
