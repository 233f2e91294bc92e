// SPDX-License-Identifier: GPL-3.0-or-later
// One line of quiet type, the end of which may be in the accent colour. A text that is too long
// ends in "…" and is its own tool tip. Screen readers hear it as a status bar: the first text at
// once, and then each text that stays for half a second, so not each letter that is typed.
#pragma once

#include <QTimer>
#include <QWidget>

class QuietLabel final : public QWidget
{
    Q_OBJECT

public:
    explicit QuietLabel(QWidget *parent = nullptr);

    void setLine(const QString &text, const QString &marked = {});
    [[nodiscard]] QString text() const { return m_text + m_marked; }
    [[nodiscard]] QString markedText() const { return m_marked; }
    // One line high.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
    QString m_marked; // follows the text, in the accent colour
    QTimer m_announcing{this};
};
