// SPDX-License-Identifier: GPL-3.0-or-later
// An edit box for one line. Pasting and dropping insert a text without its line breaks: a cell of a
// spreadsheet, for example, has one at its end. A text that the program sets is not changed. In a
// box for an entry, parts of the text can be marked.
#pragma once

#include "platform/TextMarks.h"

#include <QClipboard>
#include <QLineEdit>
#include <QTextLayout>

// The text without line breaks at its start and end, and with a space for each one inside.
[[nodiscard]] QString oneLine(const QString &text);

class OneLineBox final : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    // Whether a wavy line is below characters that a list file cannot keep.
    void showLostCharacters(bool shown);
    // Marks these parts of the text until it changes.
    void showDifferences(const QList<TextRange> &ranges);
    // What is marked now.
    [[nodiscard]] QList<QTextLayout::FormatRange> marks() const;
    // Wide enough for the placeholder.
    [[nodiscard]] QSize sizeHint() const override { return forPlaceholder(QLineEdit::sizeHint()); }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return forPlaceholder(QLineEdit::minimumSizeHint());
    }

public Q_SLOTS:
    // Replaces the slot of QLineEdit, which the context menu calls by its name.
    void paste() { pasteFrom(QClipboard::Clipboard); }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QSize forPlaceholder(QSize size) const;
    void pasteFrom(QClipboard::Mode mode);
    void endUndoStep();
    void paintMarks(const QList<QTextLayout::FormatRange> &marks);

    bool m_lostCharactersShown = false;
    QList<TextRange> m_differences;
    QString m_markedText; // to which the differences belong
    bool m_isComposing = false;
};
