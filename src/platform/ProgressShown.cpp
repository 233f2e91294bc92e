// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProgressShown.h"

#include "platform/Application.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QProgressDialog>

namespace {

constexpr int FirstShown = 400; // milliseconds
constexpr int Interval = 50;    // milliseconds

// Cannot be closed: while it is open, the windows below it cannot be used.
class StayingProgressDialog final : public QProgressDialog
{
public:
    using QProgressDialog::QProgressDialog;

    void reject() override {}

protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

} // namespace

ProgressShown::ProgressShown(QWidget *window, Cancel cancel) : m_window(*window), m_cancel(cancel)
{
    m_window.setCursor(Qt::WaitCursor);
    m_sinceShown.start();
}

ProgressShown::~ProgressShown()
{
    m_window.unsetCursor();
}

void ProgressShown::show(int done, int total)
{
    if (m_sinceShown.elapsed() < (m_dialog ? Interval : FirstShown))
        return;
    if (!m_dialog) {
        if (m_cancel == Cancel::Offered)
            m_dialog = std::make_unique<QProgressDialog>(QString(), QStringLiteral("&Cancel"), 0,
                                                         total, &m_window);
        else
            m_dialog =
                std::make_unique<StayingProgressDialog>(QString(), QString(), 0, total, &m_window);
        m_dialog->setWindowTitle(Application::Title());
        m_dialog->setWindowModality(Qt::WindowModal);
        m_dialog->setAutoReset(false);
        m_dialog->setMinimumDuration(0);
    }
    m_dialog->setLabelText(QStringLiteral("%1 of %2").arg(done).arg(total));
    m_dialog->setValue(done);
    m_dialog->show();
    QCoreApplication::processEvents(); // repaints the windows
    m_sinceShown.restart();
}

void ProgressShown::pause()
{
    m_dialog.reset();
    m_sinceShown.restart();
}

bool ProgressShown::wasCancelled() const
{
    return m_dialog && m_dialog->wasCanceled();
}
