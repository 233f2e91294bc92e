// SPDX-License-Identifier: GPL-3.0-or-later
// The word lists that come with the program.
#pragma once

#include <QString>

// Makes the folder and puts the sample lists into it, in one step; a folder that exists is left
// as it is. Throws RunTimeError where it cannot be made; nothing of it is left then.
void installSampleLists(const QString &folder);
