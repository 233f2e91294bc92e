// SPDX-License-Identifier: GPL-3.0-or-later
// For a widget that is hidden at times: the layout keeps its place free.
#pragma once

#include <QSizePolicy>
#include <QWidget>

inline void retainSizeWhenHidden(QWidget &widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}
