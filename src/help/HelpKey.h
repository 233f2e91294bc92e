// SPDX-License-Identifier: GPL-3.0-or-later
// F1 opens the handbook at the page of the window that has the keyboard.
//
// An event filter of the application, which it installs itself: the windows need not know of it.
#pragma once

#include <QObject>

class HelpKey final : public QObject
{
    Q_OBJECT

public:
    HelpKey();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_isHelping = false;
};
