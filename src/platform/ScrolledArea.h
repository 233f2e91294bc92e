// SPDX-License-Identifier: GPL-3.0-or-later
// The place of a long text, which scrolls up and down where the text is higher. The keyboard comes
// to it when there is something to scroll.
#pragma once

#include <QScrollArea>

class ScrolledArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrolledArea(QWidget *parent = nullptr);
};
