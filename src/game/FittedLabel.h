// SPDX-License-Identifier: GPL-3.0-or-later
// A label of one centred line. A text that does not fit is drawn in smaller type; if it does not
// fit in the smallest type either, it is cut and ends in an ellipsis.
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
