// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps a window alive during a long loop: a wait cursor at once and, once the loop has run for a
// moment, a bar with its progress. No command but Cancel, where it is offered, can be given
// meanwhile.
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
    // Before and after the loop waits for the person: that time does not count, and no bar stands
    // behind a question.
    void pause();
    [[nodiscard]] bool wasCancelled() const;

private:
    QWidget &m_window;
    Cancel m_cancel;
    QElapsedTimer m_sinceShown;
    std::unique_ptr<QProgressDialog> m_dialog;
};
