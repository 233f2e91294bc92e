// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/NumberedItems.h"

#include "platform/Appearance.h"

#include <QAbstractItemView>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int Gap = 6; // pixels, on both sides of the number

} // namespace

NumberedItems::NumberedItems(QAbstractItemView *view, std::function<int(int row)> numberOf)
    : QStyledItemDelegate(view), m_numberOf(std::move(numberOf))
{
}

void NumberedItems::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    const int numberWidth = width(option, index.model()->rowCount());
    QStyleOptionViewItem item = option;
    item.rect.setLeft(option.rect.left() + numberWidth);
    QStyledItemDelegate::paint(painter, item, index);
    const QRect number(option.rect.left(), option.rect.top(), numberWidth - Gap,
                       option.rect.height());
    painter->save();
    painter->setFont(option.font);
    painter->setPen(quietColour(option.palette));
    painter->drawText(number, Qt::AlignRight | Qt::AlignVCenter,
                      QString::number(m_numberOf(index.row())));
    painter->restore();
}

QSize NumberedItems::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QStyledItemDelegate::sizeHint(option, index) +
           QSize(width(option, index.model()->rowCount()), 0);
}

// Enough for the greatest number, which is in the first row or the last one.
int NumberedItems::width(const QStyleOptionViewItem &option, int rows) const
{
    const int greatest = std::max(m_numberOf(0), m_numberOf(rows - 1));
    const int digits = int(QString::number(greatest).size());
    return digits * option.fontMetrics.horizontalAdvance(QLatin1Char('0')) + 2 * Gap;
}
