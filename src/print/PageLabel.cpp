// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PageLabel.h"

#include "platform/AccessibleRole.h"

PageLabel::PageLabel(QWidget *parent) : QLabel(parent)
{
    giveAccessibleRole<QAccessible::StatusBar, PageLabel>();
    setAccessibleName(QStringLiteral("Pages")); // without a name, each change of the text is told
}

void PageLabel::setPages(const QString &text, Count count)
{
    if (this->text() != text)
        setText(text);
    if (count == Count::Known && accessibleName() != text)
        setAccessibleName(text);
}
