// SPDX-License-Identifier: GPL-3.0-or-later
// A label whose accessible name screen readers tell whenever it changes.
#pragma once

#include "platform/AccessibleRole.h"

#include <QLabel>

class StatusLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit StatusLabel(QWidget *parent = nullptr) : QLabel(parent)
    {
        giveAccessibleRole<QAccessible::StatusBar, StatusLabel>();
    }
};
