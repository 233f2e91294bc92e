// SPDX-License-Identifier: GPL-3.0-or-later
// The button of a window that Enter presses wherever the keyboard is, unless it is on another
// button. A window hands the keys that it gets to it.
#pragma once

#include <QPointer>
#include <QPushButton>

class QKeyEvent;

class DefaultButton final
{
public:
    // Null = none.
    void set(QPushButton *button);
    // Presses for Enter, given the control that has the keyboard. False for any other key.
    bool press(const QKeyEvent &event, QWidget *focus) const;

private:
    QPointer<QPushButton> m_button;
};
