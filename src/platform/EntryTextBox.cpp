// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EntryTextBox.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QTextDocumentFragment>

EntryTextBox::EntryTextBox(QWidget *parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &EntryTextBox::text_Change);
}

QString EntryTextBox::text() const
{
    if (!document()->isModified())
        return m_setText;
    // toPlainText would replace no-break spaces by spaces.
    const QString lineBreak = QStringLiteral("\r\n");
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, lineBreak)
        .replace(QChar::LineSeparator, lineBreak);
}

void EntryTextBox::setText(const QString &text)
{
    m_setText = text;
    {
        const QSignalBlocker untilSet(this);
        setPlainText(text);
    }
    Q_EMIT textChanged();
}

void EntryTextBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QPlainTextEdit::keyPressEvent(event);
    } else if ((event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0) {
        if (!isReadOnly())
            textCursor().insertBlock();
        ensureCursorVisible();
    } else {
        event->ignore();
    }
}

bool EntryTextBox::canInsertFromMimeData(const QMimeData *source) const
{
    return source && source->hasText();
}

// Qt's implementation reads the first format without a check, and crashes if there is none, as in a
// clipboard without an owner.
void EntryTextBox::insertFromMimeData(const QMimeData *source)
{
    const QString text = source && !isReadOnly() ? source->text() : QString();
    if (text.isEmpty())
        return; // keep the selection
    // Undo removes an inserted fragment alone, but an inserted text with what was typed before it.
    textCursor().insertFragment(QTextDocumentFragment::fromPlainText(text));
    ensureCursorVisible();
}

void EntryTextBox::showDifferences(const QList<TextRange> &ranges)
{
    m_differences = ranges;
    showMarks();
}

void EntryTextBox::text_Change()
{
    m_differences.clear();
    showMarks();
}

// No more marks than anyone would read.
void EntryTextBox::showMarks()
{
    constexpr int most = 200;
    QList<QTextEdit::ExtraSelection> marks;
    const auto mark = [&](const QList<TextRange> &ranges, const QTextCharFormat &format) {
        for (const TextRange &range : ranges) {
            QTextEdit::ExtraSelection selection{QTextCursor(document()), format};
            selection.cursor.setPosition(range.start);
            selection.cursor.setPosition(range.start + range.length, QTextCursor::KeepAnchor);
            marks += selection;
        }
    };
    mark(m_differences.mid(0, most), differenceFormat(palette()));
    mark(lostCharacters(toPlainText(), most), lostCharactersFormat(palette()));
    if (!marks.isEmpty() || !extraSelections().isEmpty())
        setExtraSelections(marks);
}
