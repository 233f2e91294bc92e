// SPDX-License-Identifier: GPL-3.0-or-later
// The progress of a long loop: a wait cursor from the start and, after 0.4 seconds, a dialog with a
// progress bar. Meanwhile the windows are repainted, but no command can be given except Cancel, if
// it is offered.
#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <memory>

class QProgressDialog;

class ProgressShown final : public QObject
{
    Q_OBJECT

public:
    enum class Cancel { NotOffered, Offered };

    // The window must outlive the object.
    explicit ProgressShown(QWidget *window, Cancel cancel = Cancel::NotOffered);
    ~ProgressShown() override;

    // Cheap enough to be called at every step.
    void show(int done, int total);
    // Call it before and after the loop shows a question: the progress dialog is hidden, and the
    // time of the question does not count.
    void pause();
    [[nodiscard]] bool wasCancelled() const;

private:
    QWidget &m_window;
    Cancel m_cancel;
    QElapsedTimer m_sinceShown;
    std::unique_ptr<QProgressDialog> m_dialog;
};
