// SPDX-License-Identifier: GPL-3.0-or-later
// playing_child WAVE: plays the file, and ends when it has read a line from its standard input.
#include "platform/sndPlaySoundA.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2)
        return 1;
    sndPlaySoundA(QFile::decodeName(argv[1]), SoundFlags::Asynchronous | SoundFlags::Loop);
    std::getchar();
    return 0;
}
