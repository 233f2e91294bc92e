// SPDX-License-Identifier: GPL-3.0-or-later
// A scroll area for a long text. It takes the keyboard focus only if there is something to scroll.
#pragma once

#include <QScrollArea>

class ScrolledArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrolledArea(QWidget *parent = nullptr);
};
