// SPDX-License-Identifier: GPL-3.0-or-later
// saving_child TARGET FIRST SECOND: reads the list files FIRST and SECOND and saves them as TARGET,
// one after the other, until it is killed. Prints a dot before each save and a comma after it.
#include "core/Module1.h"
#include "core/cVocabList.h"

#include <QFile>

#include <array>
#include <cstdio>

namespace {

void tell(char event)
{
    std::fputc(event, stdout);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4)
        return 1;
    std::array<cVocabList, 2> lists;
    for (std::size_t turn = 0;; ++turn) {
        cVocabList &list = lists[turn % 2];
        if (turn < 2) {
            Module1::gFileName = QFile::decodeName(argv[2 + turn]);
            if (!list.OpenFile())
                return 1;
            Module1::gFileName = QFile::decodeName(argv[1]);
        }
        tell('.');
        list.SaveFile();
        tell(',');
    }
}
