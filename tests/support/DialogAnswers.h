// SPDX-License-Identifier: GPL-3.0-or-later
// Answers the program's modal dialogs: a queue of expected message boxes, file dialogs and forms.
// Each is answered in the real dialog as soon as it is shown.
//
// An unexpected dialog fails the test and is closed, so that nothing hangs. An expected dialog that
// does not come fails the test when the object is destroyed. A failure is reported at the line that
// expected the dialog. An unexpected dialog is reported at the line that expected the next one, or
// else the one before.
#pragma once

#include "support/Caller.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>
#include <vector>

class QFileDialog;

class DialogAnswers final : public QObject
{
    Q_OBJECT

public:
    explicit DialogAnswers(Caller caller = Caller::current());
    ~DialogAnswers() override;

    // Checks the exact text and the title, and clicks the button. `inspect` is called with the box
    // before the click.
    void expectMsgBox(const QString &text, QMessageBox::StandardButton answer = QMessageBox::Ok,
                      std::function<void(QMessageBox &)> inspect = {},
                      Caller caller = Caller::current());
    // As above, but only `inspect` checks the text.
    void expectAnyMsgBox(QMessageBox::StandardButton answer,
                         std::function<void(QMessageBox &)> inspect,
                         Caller caller = Caller::current());
    // From now on an unexpected message box is no failure: `see` gets its text, and its default
    // button is clicked.
    void seeOtherMsgBoxes(std::function<void(const QString &)> see);

    // Presses Esc in a message box with this exact text.
    void escapeMsgBox(const QString &text, Caller caller = Caller::current());

    // Puts the name (a full path, or one relative to the folder shown) into the name box of a file
    // dialog and clicks Open or Save.
    void chooseFile(const QString &name, std::function<void(QFileDialog &)> inspect = {},
                    Caller caller = Caller::current());
    // Accepts the name that a file dialog offers.
    void acceptFileDialog(std::function<void(QFileDialog &)> inspect = {},
                          Caller caller = Caller::current());
    void cancelFileDialog(std::function<void(QFileDialog &)> inspect = {},
                          Caller caller = Caller::current());
    // The file dialog's own question whether the file may be replaced. After Yes the file dialog
    // closes; after No it is open again, and the next entry of the queue answers it.
    void answerOverwrite(const QString &fileTitle, QMessageBox::StandardButton answer,
                         Caller caller = Caller::current());

    // A modal form of the program, by its name: `use` clicks and types in it and must close it. A
    // dialog that opens over it is the next in the queue.
    void useForm(const char *name, std::function<void(QDialog &)> use,
                 Caller caller = Caller::current());
    // A message box with this exact text, which `use` closes.
    void useMsgBox(const QString &text, std::function<void(QMessageBox &)> use,
                   Caller caller = Caller::current());

    // Whether all expected dialogs have come and gone, and no others.
    [[nodiscard]] bool allSeen();
    [[nodiscard]] int seen() const { return m_seen; }

private:
    enum class Kind { MessageBox, FileDialog, Form };

    struct Expected
    {
        QString what;
        Caller caller;
        Kind kind = Kind::MessageBox;
        // Checks the dialog and returns a function that answers it; empty if nothing can.
        std::function<std::function<void()>(QDialog &)> answer;
    };

    [[nodiscard]] static Kind kindOf(const QDialog &dialog);
    void expect(Expected expected);
    void expectFileDialog(const QString &what, std::function<void(QFileDialog &)> inspect,
                          std::function<void(QFileDialog &)> answer, Caller caller);
    void look();
    void activateWindow();
    void meet(QDialog &dialog);
    void dismiss(QDialog &dialog, const QString &reason, Caller caller);

    std::deque<Expected> m_expected;
    Caller m_caller; // of the dialog met last; before the first one, of the constructor
    std::function<void(const QString &)> m_seeOther;
    QTimer m_timer;
    std::vector<QPointer<QDialog>> m_inUse; // open forms, the last one on top
    QPointer<QDialog> m_answered;           // the dialog met last, until it has closed
    int m_waited = 0;                       // number of looks that found it still open
    int m_seen = 0;
    bool m_failed = false;
};
