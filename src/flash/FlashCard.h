// SPDX-License-Identifier: GPL-3.0-or-later
// A card with a plain front and a coloured back: large type in the middle, which shrinks so that a
// long text still fits and scrolls only where the smallest type does not. A click, Enter or Space
// on it is its Click event.
#pragma once

#include <QPlainTextEdit>

class FlashCard final : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(bool back READ isBack)

public:
    enum class Side { Front, Back };

    explicit FlashCard(QWidget *parent = nullptr);

    [[nodiscard]] QString text() const { return m_text; }
    [[nodiscard]] bool isBack() const { return m_side == Side::Back; }
    void setText(const QString &text, Side side);
    // As setText, but the card is seen to turn, unless the style asks for no motion.
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

    QString m_text;
    Side m_side = Side::Front;
};
