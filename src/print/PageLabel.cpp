// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PageLabel.h"

#include <QAccessibleWidget>

namespace {

QAccessibleInterface *interfaceOf(const QString & /*className*/, QObject *object)
{
    auto *label = qobject_cast<PageLabel *>(object);
    return label ? new QAccessibleWidget(label, QAccessible::StatusBar) : nullptr;
}

} // namespace

PageLabel::PageLabel(QWidget *parent) : QLabel(parent)
{
    QAccessible::installFactory(interfaceOf);
    setAccessibleName(QStringLiteral("Pages")); // without a name, each change of the text is told
}

void PageLabel::show(const QString &text, Count count)
{
    if (this->text() != text)
        setText(text);
    if (count == Count::Known && accessibleName() != text)
        setAccessibleName(text);
}
