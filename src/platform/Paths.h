// SPDX-License-Identifier: GPL-3.0-or-later
// The program's fixed places.
#pragma once

#include <QString>

enum class Place {
    UserData,     // folder of what the program keeps for this person
    InstanceLock, // file that tells whether the program runs
    Top10,        // file of the Top 10 table, in UserData
    WordLists,    // start folder for word lists
    Audio,        // folder of the music that comes with the program
    Plugins,      // folder of the libraries that the program loads when it needs them
};

// The absolute path. The folder that it lies in is made where it is missing; WordLists itself is
// not, so that its absence tells the first start. What comes with the program is never made: it is
// sought from the program's own folder, and the path leads nowhere if it is missing.
[[nodiscard]] QString pathOf(Place place);
