// SPDX-License-Identifier: GPL-3.0-or-later
// A default button that a window can change or do without: Enter clicks it, unless another button
// has the keyboard focus. The window passes its key events to press().
#pragma once

#include <QPointer>
#include <QPushButton>

class QKeyEvent;

class DefaultButton final
{
public:
    // Null for no default button.
    void set(QPushButton *button);
    // Clicks a button if the key is Enter; false for any other key. `focus` is the control that has
    // the keyboard focus.
    bool press(const QKeyEvent &event, QWidget *focus) const;

private:
    QPointer<QPushButton> m_button;
};
