// SPDX-License-Identifier: GPL-3.0-or-later
// A card: large type in the middle, which shrinks so that a long text still fits and scrolls only
// where the smallest type does not. A click, Enter or Space on it is its Click event.
#pragma once

#include <QPlainTextEdit>

class FlashCard final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit FlashCard(QWidget *parent = nullptr);

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString &text);
    // Shows the text after turning the card over, where the system asks for no less motion.
    void turnTo(const QString &text);

Q_SIGNALS:
    void Click();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitType();

    QString m_text;
};
