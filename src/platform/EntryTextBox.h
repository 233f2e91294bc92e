// SPDX-License-Identifier: GPL-3.0-or-later
// An edit box for a text of several lines, with CR LF as line break.
//
// A text that the user has not changed is returned exactly as it was set, with any other line
// breaks. Enter is passed to the window (for its default button); Ctrl+Enter and Shift+Enter insert
// a line break. Tab moves to the next control. Pasting and dropping insert plain text, or nothing
// if there is none. A wavy line is below characters that a list file cannot keep.
#pragma once

#include "platform/TextMarks.h"

#include <QPlainTextEdit>

class EntryTextBox final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EntryTextBox(QWidget *parent = nullptr);

    [[nodiscard]] QString text() const;
    void setText(const QString &text);
    // Marks these parts of toPlainText() until the text changes.
    void showDifferences(const QList<TextRange> &ranges);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void text_Change();
    void showMarks();

    QString m_setText;
    QList<TextRange> m_differences;
};
