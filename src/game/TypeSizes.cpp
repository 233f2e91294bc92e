// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TypeSizes.h"

#include <QLabel>

void showText(QLabel &label, const QString &text, TypeSize size)
{
    QFont type = label.font();
    type.setPointSize(size.points);
    type.setBold(size.bold);
    label.setFont(type);
    label.setText(text);
}
