// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EntryTextBox.h"

#include "platform/Appearance.h"
#include "runtime/Windows1252.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <algorithm>

namespace {

QTextCharFormat waveFormat(const QPalette &palette)
{
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(isDark(palette) ? QColor(0xFF, 0x8A, 0x80) : QColor(0xC0, 0x20, 0x20));
    return format;
}

} // namespace

EntryTextBox::EntryTextBox(QWidget *parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &EntryTextBox::markLostCharacters);
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

// One mark for each run of such characters, and no more marks than anyone would read.
void EntryTextBox::markLostCharacters()
{
    constexpr int most = 200;
    const auto isKept = [](QChar character) { return isInWindows1252(character.unicode()); };
    QList<QTextEdit::ExtraSelection> marks;
    for (QTextBlock line = document()->firstBlock(); line.isValid() && marks.size() < most;
         line = line.next()) {
        const QString text = line.text();
        const QChar *end = text.cbegin();
        while (marks.size() < most) {
            const QChar *const start = std::find_if_not(end, text.cend(), isKept);
            if (start == text.cend())
                break;
            end = std::find_if(start, text.cend(), isKept);
            QTextEdit::ExtraSelection mark{QTextCursor(line), waveFormat(palette())};
            mark.cursor.setPosition(line.position() + int(start - text.cbegin()));
            mark.cursor.setPosition(line.position() + int(end - text.cbegin()),
                                    QTextCursor::KeepAnchor);
            marks += mark;
        }
    }
    if (!marks.isEmpty() || !extraSelections().isEmpty())
        setExtraSelections(marks);
}
