// SPDX-License-Identifier: GPL-3.0-or-later
// A label of one line in the middle of its place. Where its type would not fit there, it is drawn
// smaller, and a text that is longer still ends in an ellipsis.
#pragma once

#include <QLabel>

class FittedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit FittedLabel(QWidget *parent = nullptr) : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
    }

    [[nodiscard]] QSize minimumSizeHint() const override { return {1, 1}; }

protected:
    void paintEvent(QPaintEvent *event) override;
};
