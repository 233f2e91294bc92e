// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ScrolledArea.h"

#include <QScrollBar>

ScrolledArea::ScrolledArea(QWidget *parent) : QScrollArea(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int /*minimum*/, int maximum) {
                setFocusPolicy(maximum > 0 ? Qt::TabFocus : Qt::NoFocus);
            });
}
