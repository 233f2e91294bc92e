// SPDX-License-Identifier: GPL-3.0-or-later
// The files at the start of the program: good, damaged and unreadable ones.
#include "soak/Soak.h"

#include "platform/Paths.h"
#include "support/TestFiles.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<Entry> listOfWords(Soak &soak, int count)
{
    std::vector<Entry> list;
    while (int(list.size()) < count)
        list.push_back({soak.word(), soak.text(), soak.text()});
    return list;
}

QByteArray listFile(Soak &soak, int count)
{
    return Model::listBytes(listOfWords(soak, count), count);
}

} // namespace

void Soak::layOutFiles()
{
    QDir().mkpath(inLists(u"locked"_s));
    const auto seed = unsigned(roll(1000));
    put(u"few.lwx"_s, listFile(*this, 1 + roll(5)));
    put(u"page.lwx"_s, listFile(*this, 20 + roll(5)));
    put(u"many.lwx"_s, listFile(*this, 40 + roll(100)));
    put(u"empty.lwx"_s, {});
    put(u"cut.lwx"_s, listFile(*this, 8).chopped(30));
    put(u"tail.lwx"_s, listFile(*this, 3) + listFile(*this, 20));
    put(u"negative.lwx"_s, QByteArray("\xFF\xFF", 2) + listFile(*this, 2));
    put(u"random.lwx"_s, QByteArray(1, char(roll(40))) + '\0' + randomBytes(200, seed));
    put(u"old.txt"_s, randomBytes(2000, seed));
    put(u"readonly.lwx"_s, listFile(*this, 6));
    put(u"secret.lwx"_s, listFile(*this, 6));
    put(u"locked/inside.lwx"_s, listFile(*this, 4));
    QFile::setPermissions(inLists(u"readonly.lwx"_s), QFile::ReadOwner);
    QFile::setPermissions(inLists(u"secret.lwx"_s), QFile::WriteOwner);
    QFile::setPermissions(inLists(u"locked"_s), QFile::ReadOwner | QFile::ExeOwner);
}

void Soak::put(const QString &name, const QByteArray &bytes)
{
    const QString path = inLists(name);
    writeFile(path, bytes);
    model.disk[path] = bytes;
}

// Makes all files removable.
void Soak::allowFiles()
{
    QFile::setPermissions(inLists(u"locked"_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
