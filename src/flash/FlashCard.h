// SPDX-License-Identifier: GPL-3.0-or-later
// A card with a plain front and a coloured back. Its text is centred in the largest type that fits
// and scrolls where the smallest type does not; empty lines before and after it are not shown. A
// click, Enter or Space on the card emits Click.
#pragma once

#include <QPlainTextEdit>

class FlashCard final : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(bool back READ isBack)

public:
    enum class Side { Front, Back };

    explicit FlashCard(QWidget *parent = nullptr);

    [[nodiscard]] bool isBack() const { return m_side == Side::Back; }
    void setText(const QString &text, Side side);
    // As setText, but animated where the side changes and the style allows animations.
    void turnTo(const QString &text, Side side);

Q_SIGNALS:
    void Click();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitType();
    [[nodiscard]] QPixmap picture();

    Side m_side = Side::Front;
};
