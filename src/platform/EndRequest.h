// SPDX-License-Identifier: GPL-3.0-or-later
// Requests from outside to end the program: the system's signals (EndSignals) and the session
// manager's at logout.
//
// The open dialogs are cancelled, the last one first, so that their commands end. Then the windows
// are closed as by their close boxes, which ask a person with unsaved changes, and the program
// ends with 0. A question without Cancel waits for its answer, as long as it takes. Where a window
// stays, as after a save that failed, the program goes on, and so does the session.
#pragma once

#include "platform/EndSignals.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class QSessionManager;

class EndRequest final : public QObject
{
    Q_OBJECT

public:
    // Without unsaved work nobody is asked anything at logout.
    explicit EndRequest(std::function<bool()> isWorkUnsaved);

    // Does nothing more while a request is under way.
    void begin();
    // At logout with unsaved work: closes the windows at once where no command is running, else
    // soon. False where the session must go on.
    [[nodiscard]] bool mayLogOut();

Q_SIGNALS:
    // Commands that run on without a dialog should end soon.
    void begun();

private:
    void look();
    void commitData(QSessionManager &session);

    std::function<bool()> m_isWorkUnsaved;
    EndSignals m_signals;
    QTimer m_timer;               // runs while dialogs go
    QPointer<QWidget> m_waitsFor; // the dialog that could not be cancelled
};

// While one lives, the dialogs belong to the end of the program itself, however it was begun, and
// no request cancels them.
class LastQuestions final
{
public:
    LastQuestions() { s_open = true; }
    ~LastQuestions() { s_open = false; }
    Q_DISABLE_COPY_MOVE(LastQuestions)

    [[nodiscard]] static bool areOpen() { return s_open; }

private:
    static inline bool s_open = false;
};
