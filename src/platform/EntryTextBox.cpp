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
}

QString EntryTextBox::text() const
{
    if (!document()->isModified())
        return m_setText;
    // Not toPlainText: that would turn hard blanks into blanks.
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

// Qt's own code takes the first of the formats unseen, and a clipboard without an owner has none.
void EntryTextBox::insertFromMimeData(const QMimeData *source)
{
    const QString text = source && !isReadOnly() ? source->text() : QString();
    if (text.isEmpty())
        return; // what is selected stays
    // A fragment is undone by itself, a text together with what was typed before it.
    textCursor().insertFragment(QTextDocumentFragment::fromPlainText(text));
    ensureCursorVisible();
}
