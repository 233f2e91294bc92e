// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ScrolledArea.h"

#include "platform/AccessibleRole.h"

#include <QScrollBar>

ScrolledArea::ScrolledArea(QWidget *parent) : QScrollArea(parent)
{
    giveAccessibleRole<QAccessible::Pane, ScrolledArea>();
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int /*minimum*/, int maximum) {
                setFocusPolicy(maximum > 0 ? Qt::TabFocus : Qt::NoFocus);
            });
}
