// SPDX-License-Identifier: GPL-3.0-or-later
// The copy of the open list that lies in the lists' folder while the list has unsaved changes, so
// that a crash, a kill or a power cut does not lose them.
//
// It is written a moment after a change, never while a handler is at work, and removed as soon as
// the list is saved or replaced. It stays where the list is replaced without a question about
// saving it, as after an export. A copy that cannot be written is left out without a message
// until the next change. A text that is too long for a list file is cut in the copy.
#pragma once

#include "core/cVocabList.h"

#include <QDateTime>
#include <QTimer>

class UnsavedCopy final
{
public:
    // Of the main window's list; its timer is a child of the window.
    explicit UnsavedCopy(QObject *window);
    ~UnsavedCopy();
    Q_DISABLE_COPY_MOVE(UnsavedCopy)

    // Removes the copy: the person does not want the unsaved changes.
    void giveUp();

private:
    void listChanged(cVocabList::Change change);
    void timedOut();
    void write();
    void remove();
    [[nodiscard]] bool isOwnFile() const;

    QTimer m_timer;
    QString m_path;      // empty where there is no copy
    QString m_title;     // of the list when the copy got its name
    QDateTime m_written; // the copy's time of modification
};
