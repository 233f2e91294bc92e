// SPDX-License-Identifier: GPL-3.0-or-later
// Brings the words of another file, named by gFileName, into the open list. Words that the list
// holds already are put before the person by dlgWordExist, whose answers are flags of Module1.
//
// Both readers throw what opening the file throws, ImportDif also what a malformed file leads to:
// SubscriptOutOfRange, TypeMismatch, Overflow, InvalidProcedureCall. What was added then stays.
#pragma once

#include "runtime/Integer.h"
#include "transfer/WordAdder.h"

#include <QObject>

class Import final : public QObject
{
    Q_OBJECT

public:
    explicit Import(QObject *parent = nullptr);

    void ImportWordList();
    void ImportDif();

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
    void askAboutWord();
    [[nodiscard]] bool fitsInList() const;

    WordAdder m_adder;
};
