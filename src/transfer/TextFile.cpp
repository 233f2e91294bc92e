// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/TextFile.h"

#include "core/cVocabList.h"
#include "runtime/Windows1252.h"

QByteArray textOfList(cVocabList &list)
{
    QByteArray text;
    const int count = list.NumWords().toInt(); // may be the largest Integer
    for (int i = 1; i <= count; ++i) {
        list.CurrentWord(i);
        text += toWindows1252(list.Word());
        text += '\t';
        text += toWindows1252(list.Definition());
        text += '\t';
        text += toWindows1252(list.Sentence());
        text += "\r\n";
    }
    return text;
}
