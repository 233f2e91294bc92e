// SPDX-License-Identifier: GPL-3.0-or-later
// biglist FILE: writes a list of 32,000 entries, for measuring the program from outside.
#include "SampleList.h"
#include "core/cVocabList.h"

#include <QFile>

int main(int argc, char **argv)
{
    return argc == 2 && QFile::copy(SampleList::file(cVocabList::MaxWords),
                                    QString::fromLocal8Bit(argv[1]))
               ? 0
               : 1;
}
