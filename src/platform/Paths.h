// SPDX-License-Identifier: GPL-3.0-or-later
// The fixed files and folders of the program.
#pragma once

#include <QString>

enum class Place {
    UserData,     // folder of the files that the program keeps for the user
    InstanceLock, // file that is locked while the program runs
    Top10,        // file of the Top 10 table, in UserData
    WordLists,    // start folder for word lists
    Audio,        // folder of the music that comes with the program
    Plugins,      // folder of the program's plugins
    Handbook,     // folder of the handbook's pages
};

// The absolute path. Makes UserData, and the folder that contains a file or WordLists, if it is
// missing. WordLists itself is not made: at the first start of the program it does not exist yet.
// Audio, Plugins and Handbook are installed with the program, and the path may not exist.
[[nodiscard]] QString pathOf(Place place);
