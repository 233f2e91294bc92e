// SPDX-License-Identifier: GPL-3.0-or-later
// Adds the words of another file, gFileName, to the open list. For a word that the list already
// has, dlgWordExist asks the person; its answers are flags in Module1.
//
// Both readers throw the errors of opening the file. ImportDif also throws SubscriptOutOfRange,
// TypeMismatch, Overflow or InvalidProcedureCall for a malformed file. Words that were added stay.
#pragma once

#include "runtime/Integer.h"
#include "transfer/WordAdder.h"

#include <QObject>
#include <QStringList>

class Import final : public QObject
{
    Q_OBJECT

public:
    explicit Import(QObject *parent = nullptr);

    void ImportWordList();
    void ImportDif();
    // How many words were added so far, and how many the full list refused. The message at the end
    // counts both.
    [[nodiscard]] int added() const { return m_adder.added(); }
    [[nodiscard]] int refused() const { return m_adder.refused(); }

Q_SIGNALS:
    // The main window should be brought up to date.
    void refresh();
    // The person has deleted an entry of the open list.
    void deleted();
    // A word list was read and there are changes to save.
    void changed();
    // Before and after a question or message to the person.
    void paused();
    // Steps done of all.
    void progress(int done, int total);

private:
    void importDifRows();
    void ReadDifLines();
    [[nodiscard]] int readDifRow(int line, Integer valuesPerRow);
    void addConflicting();
    void add();
    void askAboutWord(const QStringList &wordsAhead);
    [[nodiscard]] bool fitsInList() const;

    WordAdder m_adder;
    int m_asked = 0; // questions about existing words in this import
};
