// SPDX-License-Identifier: GPL-3.0-or-later
// Draws a number in front of each item of a list; the texts of the items stay as they are.
#pragma once

#include <QStyledItemDelegate>

#include <functional>

class QAbstractItemView;

class NumberedItems final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // numberOf: the number that belongs to a row.
    NumberedItems(QAbstractItemView *view, std::function<int(int row)> numberOf);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;

private:
    [[nodiscard]] int width(const QStyleOptionViewItem &option, int rows) const;

    std::function<int(int row)> m_numberOf;
};
