// SPDX-License-Identifier: GPL-3.0-or-later
// The person in front of the program's modal dialogs: a queue of message boxes, file dialogs and
// forms that are expected, each answered in the real dialog as soon as it shows.
//
// A dialog that is not the next expected one fails the test and is dismissed, so that nothing
// hangs; one that was expected and did not come fails it when the object goes. A failure is
// reported at the line that expected the dialog; that of a dialog that nothing expected, at the
// line that expected the one before.
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

    // The exact text, the application's title and, pressed, the real button. `inspect` sees the
    // box before it is answered.
    void expectMsgBox(const QString &text, QMessageBox::StandardButton answer = QMessageBox::Ok,
                      std::function<void(QMessageBox &)> inspect = {},
                      Caller caller = Caller::current());
    // As above, the text being checked by `inspect` alone.
    void expectAnyMsgBox(QMessageBox::StandardButton answer,
                         std::function<void(QMessageBox &)> inspect,
                         Caller caller = Caller::current());
    // From now on a message box that comes instead of what is expected next, or where nothing is
    // expected, is no failure: `see` has its text and its default button is pressed.
    void seeOtherMsgBoxes(std::function<void(const QString &)> see);

    // A message box that Esc closes.
    void escapeMsgBox(const QString &text, Caller caller = Caller::current());

    // A file dialog: the name (a full path, or one relative to the folder shown) is put into the
    // name box and Open or Save is pressed.
    void chooseFile(const QString &name, std::function<void(QFileDialog &)> inspect = {},
                    Caller caller = Caller::current());
    // A file dialog whose offered name is accepted as it stands.
    void acceptFileDialog(std::function<void(QFileDialog &)> inspect = {},
                          Caller caller = Caller::current());
    void cancelFileDialog(std::function<void(QFileDialog &)> inspect = {},
                          Caller caller = Caller::current());
    // The file dialog's own question whether the file may be replaced. After Yes the file dialog
    // closes; after No it is open again, and what comes next in the queue answers it.
    void answerOverwrite(const QString &fileTitle, QMessageBox::StandardButton answer,
                         Caller caller = Caller::current());

    // A modal form of the program, by its name: `use` clicks and types in it and has to close it.
    // What opens over it is the next in the queue.
    void useForm(const char *name, std::function<void(QDialog &)> use,
                 Caller caller = Caller::current());
    // A message box with this exact text, closed by `use`, in whichever way.
    void useMsgBox(const QString &text, std::function<void(QMessageBox &)> use,
                   Caller caller = Caller::current());

    // Whether every dialog that was expected has come and gone and no other one has.
    [[nodiscard]] bool allSeen();
    [[nodiscard]] int seen() const { return m_seen; }

private:
    enum class Kind { MessageBox, FileDialog, Form };

    struct Expected
    {
        QString what;
        Caller caller;
        Kind kind = Kind::MessageBox;
        // Checks the dialog and returns what answers it, or nothing where it is another one.
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
    Caller m_caller; // of the last expectation that was met; at first, of the constructor
    std::function<void(const QString &)> m_seeOther;
    QTimer m_timer;
    std::vector<QPointer<QDialog>> m_inUse; // forms, below one another
    QPointer<QDialog> m_answered;           // the dialog met last, while its answer is under way
    int m_waited = 0;                       // looks at the answered dialog that found it open still
    int m_seen = 0;
    bool m_failed = false;
};
