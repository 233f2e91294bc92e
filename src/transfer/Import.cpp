// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/Import.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/MsgBox.h"
#include "runtime/BinaryFile.h"
#include "transfer/DifLines.h"
#include "transfer/dlgWordExist.h"

#include <QSet>

using namespace Module1;

namespace {

// The words of the source after its current one.
QStringList listWordsAhead()
{
    const cVocabList &source = gImportList();
    QStringList words;
    for (int i = source.CurrentWord().toInt() + 1; i <= source.NumWords().toInt(); ++i)
        if (const QString &word = source.entry(i).Word; !word.isEmpty())
            words += word;
    return words;
}

// The words of the rows after this line, up to a row that the import will not read.
QStringList difWordsAhead(int line, Integer valuesPerRow)
{
    QStringList words;
    try {
        while (gDifLines(line) != QLatin1String("EOD")) {
            if (gDifLines(line) != QLatin1String("BOT")) {
                ++line;
                continue;
            }
            const QString word = difValue(gDifLines(line + 2));
            line += 2 * difValuesRead(valuesPerRow);
            if (gDifLines(line).size() < 2)
                break;
            words += word;
        }
    } catch (const RunTimeError &) {
        return words;
    }
    return words;
}

// How many of the words the open list will have when they come in, if no entry is deleted or
// changed meanwhile.
int conflictsAmong(const QStringList &words)
{
    cVocabList &list = gVocabList();
    const bool takesWords = !list.isFull();
    QSet<QString> added;
    int conflicts = 0;
    for (const QString &word : words) {
        const QString lower = word.toLower();
        if (added.contains(lower) || !list.positionsOf(lower).empty())
            ++conflicts;
        else if (takesWords)
            added += lower;
    }
    return conflicts;
}

} // namespace

Import::Import(QObject *parent)
    : QObject(parent), m_adder(gVocabList(), [this] { Q_EMIT paused(); })
{
}

void Import::ImportWordList()
{
    gAddThis = gAddAll = gStopImport = gSkipAll = false;
    cVocabList &source = gImportList();
    source.CurrentWord(1);
    gImportCount = 0;
    m_asked = 0;
    if (!source.OpenFile() || !fitsInList())
        return;
    while (source.CurrentWord() <= source.NumWords() && !gStopImport) {
        if (!source.Word().isEmpty()) {
            gImportWord = source.Word();
            gImportDef = source.Definition();
            gImportSen = source.Sentence();
            if (gAddAll || !gVocabList().Exist(gImportWord, 1))
                add();
            else
                addConflicting();
        }
        Q_EMIT progress(source.CurrentWord().toInt(), source.NumWords().toInt());
        source.CurrentWord(source.CurrentWord() + 1);
    }
    if (gChanged)
        Q_EMIT changed();
    Q_EMIT paused();
    MsgBox(gImportCount.toText() + QStringLiteral(" words imported"));
    gAddThis = gAddAll = false;
}

bool Import::fitsInList() const
{
    const int count = gVocabList().NumWords().toInt();
    if (count > cVocabList::MaxWords) {
        MsgBox(QStringLiteral("Cannot import any more words. Maximum number of words=%1")
                   .arg(cVocabList::MaxWords));
        return false;
    }
    if (gImportList().NumWords().toInt() + count > cVocabList::MaxWords) {
        MsgBox(QStringLiteral("Cannot import words because this will exceed maximum number of "
                              "words. Maximum number of words=%1")
                   .arg(cVocabList::MaxWords));
        return false;
    }
    return true;
}

void Import::addConflicting()
{
    if (!gSkipAll)
        askAboutWord(listWordsAhead());
    if (gAddThis || gAddAll)
        add();
}

void Import::ReadDifLines()
{
    const QByteArray bytes = BinaryFile::read(
        gFileName, [](QByteArrayView start) { return difEnd(start).has_value(); },
        BinaryFile::Missing::IsAnError);
    // After an empty file, the lines of the last DIF file stay.
    if (!bytes.isEmpty())
        gDifLines = difLines(QByteArrayView(bytes).first(difEnd(bytes).value_or(bytes.size())));
}

void Import::ImportDif()
{
    try {
        importDifRows();
    } catch (const RunTimeError &) {
        m_adder.tellOfTheRest();
        throw;
    }
    m_adder.tellOfTheRest();
    Q_EMIT paused();
    MsgBox(gImportCount.toText() + QStringLiteral(" words added"));
    gSkipAll = gAddThis = gAddAll = false;
}

void Import::importDifRows()
{
    ReadDifLines();
    const double vectors = difVectors(gDifLines(5));
    const Integer valuesPerRow = difTuples(gDifLines(8));
    gAddThis = gAddAll = gStopImport = false;
    gImportList().CurrentWord(1);
    gImportCount = 0;
    m_asked = 0;
    int line = 14;
    while (vectors >= 1 && !gStopImport) {
        if (gDifLines(line) != QLatin1String("BOT")) {
            ++line;
        } else {
            line = readDifRow(line, valuesPerRow);
            if (!gAddAll) {
                if (!gVocabList().Exist(gImportWord, 1))
                    add();
                else if (!gSkipAll)
                    askAboutWord(difWordsAhead(line, valuesPerRow));
            }
            // Also after a new word: once Yes was answered, each new word comes in twice until
            // the dialog opens again.
            if (gAddThis || gAddAll)
                add();
        }
        if (gDifLines(line) == QLatin1String("EOD"))
            gStopImport = true;
        Q_EMIT progress(line, gDifLines.size());
    }
}

// Reads the row that begins at this line. Values that the row does not have stay as they were.
// Returns the line of the last value read.
int Import::readDifRow(int line, Integer valuesPerRow)
{
    line += 2;
    gImportWord = difValue(gDifLines(line));
    if (valuesPerRow == 2) {
        line += 2;
        gImportDef = difValue(gDifLines(line));
    }
    if (valuesPerRow == 3) {
        line += 2;
        gImportSen = difValue(gDifLines(line));
    }
    return line;
}

void Import::add()
{
    m_adder.add(gImportWord, gImportDef, gImportSen);
    gChanged = true;
    ++gImportCount;
}

// The conflicts ahead are counted anew for each question: answers change their number.
void Import::askAboutWord(const QStringList &wordsAhead)
{
    Q_EMIT paused();
    dlgWordExist dialog(qobject_cast<QWidget *>(parent()));
    ++m_asked;
    dialog.showConflict(m_asked, m_asked + conflictsAmong(wordsAhead));
    connect(&dialog, &dlgWordExist::refresh, this, &Import::refresh);
    connect(&dialog, &dlgWordExist::deleted, this, &Import::deleted);
    dialog.exec();
    Q_EMIT paused();
}
