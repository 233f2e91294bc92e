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

// Whether a command has not ended yet. It may still wait for a dialog, or go on after one that has
// just been closed.
bool isCommandRunning()
{
    return QThread::currentThread()->loopLevel() > 1 || QApplication::activeModalWidget();
}

// False where it goes by itself: some questions have no Cancel, and a progress bar goes when its
// loop is over.
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

// One that closes may show another one. False where one stays.
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
    // The session manager takes what this returns with for the answer.
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
    // A command cannot end before this function does: the person is asked soon after, and can
    // then log out again.
    begin();
    return false;
}

// Where the session manager lets nobody be asked, the copy of the unsaved work has to do.
void EndRequest::commitData(QSessionManager &session)
{
    if (!m_isWorkUnsaved() || !session.allowsInteraction())
        return;
    if (mayLogOut())
        session.release();
    else
        session.cancel();
}
