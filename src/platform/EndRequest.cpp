// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EndRequest.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QSessionManager>
#include <QThread>

#include <algorithm>
#include <utility>

namespace {

constexpr int LookInterval = 20; // ms

// Whether a command is waiting for a dialog, or goes on after its dialog was closed.
bool isCommandRunning()
{
    return QThread::currentThread()->loopLevel() > 1 || QApplication::activeModalWidget();
}

// False if the dialog cannot be cancelled: some questions have no Cancel, and a progress dialog
// closes at the end of its loop.
bool cancel(QWidget &dialog)
{
    if (dialog.close())
        return true;
    if (qobject_cast<QMessageBox *>(&dialog) || qobject_cast<QProgressDialog *>(&dialog))
        return false;
    if (auto *form = qobject_cast<QDialog *>(&dialog))
        form->done(QDialog::Rejected);
    return true;
}

QWidget *openWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->isVisible() && window->windowType() != Qt::ToolTip;
    });
    return found == windows.end() ? nullptr : *found;
}

// A window that closes may show another one. False if a window stays open.
bool closeWindows()
{
    while (QWidget *window = openWindow())
        if (!window->close() || window->isVisible())
            return false;
    QCoreApplication::exit(0);
    return true;
}

} // namespace

EndRequest::EndRequest(std::function<bool()> isWorkUnsaved)
    : m_isWorkUnsaved(std::move(isWorkUnsaved))
{
    m_timer.setParent(this);
    m_timer.setInterval(LookInterval);
    connect(&m_timer, &QTimer::timeout, this, &EndRequest::look);
    connect(&m_signals, &EndSignals::received, this, &EndRequest::begin);
    // The session manager gets its answer when the slot returns.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &EndRequest::commitData,
            Qt::DirectConnection);
}

void EndRequest::begin()
{
    if (m_timer.isActive())
        return;
    Q_EMIT begun();
    m_timer.start();
}

void EndRequest::look()
{
    if (LastQuestions::areOpen())
        return;
    if (QWidget *menu = QApplication::activePopupWidget()) {
        menu->close();
    } else if (const QPointer<QWidget> dialog = QApplication::activeModalWidget()) {
        if (dialog != m_waitsFor && !cancel(*dialog))
            m_waitsFor = dialog;
    } else if (!isCommandRunning()) {
        m_timer.stop();
        closeWindows();
    }
}

bool EndRequest::mayLogOut()
{
    if (LastQuestions::areOpen())
        return false;
    if (!isCommandRunning())
        return closeWindows();
    // The running command cannot end before this function returns. The user is asked afterwards,
    // and can then log out again.
    begin();
    return false;
}

// If the session manager allows no questions, the copy of the unsaved work has to be enough.
void EndRequest::commitData(QSessionManager &session)
{
    if (!m_isWorkUnsaved() || !session.allowsInteraction())
        return;
    if (mayLogOut())
        session.release();
    else
        session.cancel();
}
