// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/HeldKeys.h"

#include "platform/EntryTextBox.h"

#include <QKeyEvent>
#include <QMessageBox>

namespace {

bool isAnswer(const QWidget &receiver, int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // It breaks the line there, or is left to the window and comes here again.
        return !qobject_cast<const EntryTextBox *>(&receiver);
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Space:
        return !receiver.testAttribute(Qt::WA_InputMethodEnabled);
    default:
        // A letter of a button's caption answers a message box.
        return qobject_cast<const QMessageBox *>(&receiver) != nullptr;
    }
}

} // namespace

bool HeldKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        m_repeated = static_cast<QKeyEvent *>(event)->isAutoRepeat();
        return false;
    case QEvent::Shortcut:
        return m_repeated;
    case QEvent::KeyPress: {
        const auto &key = static_cast<QKeyEvent &>(*event);
        return key.isAutoRepeat() && watched->isWidgetType() &&
               isAnswer(static_cast<QWidget &>(*watched), key.key());
    }
    default:
        return false;
    }
}
