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
        // In an EntryTextBox the key may insert a line break. Otherwise the box passes the event to
        // its window, where the filter sees it again.
        return !qobject_cast<const EntryTextBox *>(&receiver);
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Space:
        return !receiver.testAttribute(Qt::WA_InputMethodEnabled);
    default:
        // In a message box the underlined letter of a button clicks it.
        return qobject_cast<const QMessageBox *>(&receiver) != nullptr;
    }
}

} // namespace

bool HeldKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyRelease:
        m_releasedKey = static_cast<QKeyEvent *>(event)->key();
        m_releasedAt = static_cast<QKeyEvent *>(event)->timestamp();
        return false;
    case QEvent::ShortcutOverride:
        m_repeated = isRepeat(static_cast<QKeyEvent &>(*event));
        return false;
    case QEvent::Shortcut:
        return m_repeated;
    case QEvent::KeyPress: {
        const auto &key = static_cast<QKeyEvent &>(*event);
        return isRepeat(key) && watched->isWidgetType() &&
               isAnswer(static_cast<QWidget &>(*watched), key.key());
    }
    default:
        return false;
    }
}

// An X server sends a repeat as a release and a press with the same time stamp. Qt does not
// recognise it if the press arrives after Qt has handled the release.
bool HeldKeys::isRepeat(const QKeyEvent &press) const
{
    return press.isAutoRepeat() || (press.timestamp() != 0 && press.timestamp() == m_releasedAt &&
                                    press.key() == m_releasedKey);
}
