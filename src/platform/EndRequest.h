// SPDX-License-Identifier: GPL-3.0-or-later
// Ends the program when the system asks for it: by a signal (EndSignals), or by the session manager
// at logout.
//
// It cancels the open dialogs, the last one first, so that their commands end. Then it closes the
// windows, which ask about unsaved changes, and the program ends with exit code 0. If a question
// has no Cancel, it waits for the answer. If a window stays open, for example because saving has
// failed, the program goes on, and the session too.
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
    // At logout the user is asked only if the function returns true.
    explicit EndRequest(std::function<bool()> isWorkUnsaved);

    // Does nothing if a request has begun and not ended.
    void begin();
    // At logout with unsaved work: closes the windows, or begins to if a command is running. False
    // if the session must go on.
    [[nodiscard]] bool mayLogOut();

Q_SIGNALS:
    // Commands that are running should end soon.
    void begun();

private:
    void look();
    void commitData(QSessionManager &session);

    std::function<bool()> m_isWorkUnsaved;
    EndSignals m_signals;
    QTimer m_timer;               // runs until the dialogs are closed
    QPointer<QWidget> m_waitsFor; // the dialog that could not be cancelled
};

// While an object of this class exists, no request cancels a dialog: the program is ending, and the
// dialogs ask about that.
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
