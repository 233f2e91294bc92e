// SPDX-License-Identifier: GPL-3.0-or-later
// The example sentence as the game shows it: with the word that is asked for blanked out.
#pragma once

#include <QString>

// Every word of the sentence that begins with the asked word becomes "_____": with its first
// letter in upper case, as it is written, or in capital letters, character for character. Where
// that blanks nothing the asked word without its last letter is tried, then without its last two,
// so that inflected forms are found. Words end at a blank or one of ".,;!?". A sentence without
// the word comes back as it is.
[[nodiscard]] QString blankedSentence(const QString &sentence, const QString &word);
