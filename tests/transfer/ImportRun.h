// SPDX-License-Identifier: GPL-3.0-or-later
// An import without the main window: its file, the answers to its dialogs, and its signals.
#pragma once

#include "core/FreshState.h"
#include "runtime/RunTimeError.h"
#include "support/FormTest.h"
#include "transfer/Import.h"
#include "transfer/ImportTools.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class ImportRun final
{
    FreshState m_state;

public:
    DialogAnswers answers;
    Import import;
    QSignalSpy refreshed{&import, &Import::refresh};
    QSignalSpy changed{&import, &Import::changed};
    QSignalSpy progress{&import, &Import::progress};

    [[nodiscard]] QString path(const QString &name) const { return m_state.path(name); }

    void wordList(const QByteArray &bytes)
    {
        use(u"words.lwx"_s, bytes);
        import.ImportWordList();
    }

    void dif(const QByteArray &bytes)
    {
        use(u"words.dif"_s, bytes);
        import.ImportDif();
    }

    // The number of the error with which it ends; 0 if there is none.
    int difError(const QByteArray &bytes)
    {
        try {
            dif(bytes);
        } catch (const RunTimeError &error) {
            return error.number();
        }
        return 0;
    }

    void expectImported(int words, Caller caller = Caller::current())
    {
        answers.expectMsgBox(u"%1 words imported"_s.arg(words), QMessageBox::Ok, okOnly, caller);
    }

    void expectAdded(int words, Caller caller = Caller::current())
    {
        answers.expectMsgBox(u"%1 words added"_s.arg(words), QMessageBox::Ok, okOnly, caller);
    }

private:
    static void okOnly(QMessageBox &box)
    {
        QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    }

    void use(const QString &name, const QByteArray &bytes)
    {
        Module1::gFileName = path(name);
        writeFile(Module1::gFileName, bytes);
    }
};
