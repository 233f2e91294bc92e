// SPDX-License-Identifier: GPL-3.0-or-later
// What a process that edits a list writes for its parent, a line each:
//   home PATH    it has started, with this home folder
//   begin LIST   an action begins; LIST is the content of the list when it has ended
//   end TIME     the action has ended, at this moment
#pragma once

#include <QByteArrayList>

#include <chrono>

namespace EditingSession {

// The same clock for all processes.
inline qint64 milliseconds()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

inline constexpr char Seed[] = "EDITING_SEED"; // of the session, an environment variable
inline constexpr char ListName[] = "list.lwx"; // of the list file, in the home folder
inline constexpr char FieldEnd = '\x1f';       // in a LIST, behind each text
inline constexpr char Home[] = "home ";
inline constexpr char Begin[] = "begin ";
inline constexpr char End[] = "end ";

} // namespace EditingSession
