// SPDX-License-Identifier: GPL-3.0-or-later
// The example sentence with the asked word blanked out.
#pragma once

#include <QString>

// Replaces every word of the sentence that begins with the asked word by "_____". Blanks around the
// asked word do not count. The beginning must equal the asked word character for character: as it
// is written, in capital letters, or with a capital first letter. If nothing is found, the asked
// word is tried without its last letter, then without its last two, so that inflected forms are
// found; the form with a capital first letter is always tried whole. Words end at a blank or one of
// ".,;!?". A sentence in which nothing is found is returned unchanged.
[[nodiscard]] QString blankedSentence(const QString &sentence, const QString &storedWord);
