// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DefaultButton.h"

#include <QKeyEvent>

void DefaultButton::set(QPushButton *button)
{
    if (m_button)
        m_button->setDefault(false);
    m_button = button;
    if (m_button)
        m_button->setDefault(true);
}

bool DefaultButton::press(const QKeyEvent &event, QWidget *focus) const
{
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter)
        return false;
    auto *button = qobject_cast<QPushButton *>(focus);
    if (!button)
        button = m_button;
    if (button)
        button->click();
    return true;
}
