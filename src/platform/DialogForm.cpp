// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DialogForm.h"

#include "platform/Screen.h"

#include <QGuiApplication>
#include <QHash>
#include <QScreen>
#include <QString>

#include <algorithm>

namespace {

// Of the dialogs that were closed: the corner of the window's frame and the size inside it.
QHash<QString, QRect> &lastPlaces()
{
    static QHash<QString, QRect> places;
    return places;
}

// In larger type, a dialog needs another size.
QString nameOfPlace(const QWidget &dialog)
{
    return dialog.objectName() + QLatin1Char(' ') + dialog.font().key();
}

} // namespace

void DialogForm::openAsLastClosed()
{
    m_keepsPlace = true;
    const QRect last = lastPlaces().value(nameOfPlace(*this));
    if (last.isNull())
        return;
    // The screen may be another one by now.
    if (QScreen *shows = QGuiApplication::screenAt(last.center()))
        setScreen(shows);
    const QRect room(screen()->availableGeometry().topLeft(), roomOnScreen(*this));
    const QSize size = last.size().boundedTo(room.size());
    resize(size);
    move(std::clamp(last.left(), room.left(), std::max(room.left(), room.right() - size.width())),
         std::clamp(last.top(), room.top(), std::max(room.top(), room.bottom() - size.height())));
}

void DialogForm::reject()
{
    if (m_closing)
        QDialog::reject();
    else
        close();
}

void DialogForm::closeEvent(QCloseEvent *event)
{
    const QRect place(pos(), size());
    m_closing = true;
    Form::closeEvent(event);
    m_closing = false;
    if (m_keepsPlace && event->isAccepted())
        lastPlaces().insert(nameOfPlace(*this), place);
}
