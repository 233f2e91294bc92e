// SPDX-License-Identifier: GPL-3.0-or-later
// Makes a list file of a readable text: makelist <text file> <list file>.
//
// The text is UTF-8. Entries stand between empty lines, each on three lines: word, definition,
// sentence. A line that begins with "#" is a remark.
#include "core/Module1.h"
#include "core/cVocabList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <cstdio>

namespace {

int fail(const QString &reason)
{
    std::fprintf(stderr, "makelist: %s\n", qUtf8Printable(reason));
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3)
        return fail(QStringLiteral("usage: makelist <text file> <list file>"));
    QFile textFile(QString::fromLocal8Bit(argv[1]));
    if (!textFile.open(QIODevice::ReadOnly | QIODevice::Text))
        return fail(textFile.fileName() + QStringLiteral(": ") + textFile.errorString());

    cVocabList &list = Module1::gVocabList();
    QTextStream text(&textFile);
    QStringList entry;
    while (!text.atEnd() || !entry.isEmpty()) {
        const QString line = text.readLine();
        if (line.startsWith(QLatin1Char('#')))
            continue;
        if (!line.isEmpty()) {
            entry += line;
            continue;
        }
        if (entry.isEmpty())
            continue;
        if (entry.size() != 3)
            return fail(QStringLiteral("%1: entry \"%2\" has not three lines")
                            .arg(textFile.fileName(), entry.constFirst()));
        list.AddVocab(entry[0], entry[1], entry[2]);
        entry.clear();
    }
    try {
        Module1::gFileName = QString::fromLocal8Bit(argv[2]);
        QDir().mkpath(QFileInfo(Module1::gFileName).path());
        QFile::remove(Module1::gFileName);
        list.SaveFile();
    } catch (const RunTimeError &error) {
        return fail(error.report());
    }
    return 0;
}
