// SPDX-License-Identifier: GPL-3.0-or-later
// A label that wraps its text at words, and inside words that are wider than the label. Its height
// follows from its width; put it into a scroll area. Lines are centred unless another alignment is
// set.
#pragma once

#include <QLabel>
#include <QTextLayout>

class WrappedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit WrappedLabel(QWidget *parent = nullptr);

    // The first characters are shown in smaller, quiet type.
    void setLeadIn(qsizetype characters);

    [[nodiscard]] QSize minimumSizeHint() const override { return {1, 1}; }
    [[nodiscard]] QSize sizeHint() const override { return {width(), heightForWidth(width())}; }
    [[nodiscard]] int heightForWidth(int width) const override
    {
        return sizeWithin(width).height();
    }
    // The size of the text when it is wrapped at this width.
    [[nodiscard]] QSize sizeWithin(int width) const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QList<QTextLayout::FormatRange> formats() const;

    qsizetype m_leadIn = 0;
};
