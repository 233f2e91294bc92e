// SPDX-License-Identifier: GPL-3.0-or-later
// A label whose lines break at words, and inside a word that is wider than the label. It is as
// high as that makes it, so that it belongs into a scroll area. Lines are centred unless another
// alignment is set.
#pragma once

#include <QLabel>

class WrappedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit WrappedLabel(QWidget *parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override { return {1, 1}; }
    [[nodiscard]] QSize sizeHint() const override { return {width(), heightForWidth(width())}; }
    [[nodiscard]] int heightForWidth(int width) const override
    {
        return sizeWithin(width).height();
    }
    // Of the lines as they break in a label of that width; the longest may be shorter.
    [[nodiscard]] QSize sizeWithin(int width) const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
};
