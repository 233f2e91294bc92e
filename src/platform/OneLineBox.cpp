// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OneLineBox.h"

#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyleOptionFrame>

QString oneLine(const QString &text)
{
    static const QRegularExpression atTheEnds(
        QStringLiteral("\\A[\\r\\n\\x{2028}\\x{2029}]+|[\\r\\n\\x{2028}\\x{2029}]+\\z"));
    static const QRegularExpression inside(QStringLiteral("\\r\\n|[\\r\\n\\x{2028}\\x{2029}]"));
    return QString(text).remove(atTheEnds).replace(inside, QStringLiteral(" "));
}

QSize OneLineBox::forPlaceholder(QSize size) const
{
    if (placeholderText().isEmpty())
        return size;
    const int others = QLineEdit::minimumSizeHint().width() - fontMetrics().maxWidth();
    const int text = fontMetrics().horizontalAdvance(placeholderText());
    return size.expandedTo({text + others, 0});
}

void OneLineBox::keyPressEvent(QKeyEvent *event)
{
    if (!event->matches(QKeySequence::Paste)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const bool ofSelection = event->key() == Qt::Key_Insert &&
                             event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    pasteFrom(ofSelection ? QClipboard::Selection : QClipboard::Clipboard);
}

void OneLineBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::MiddleButton) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    deselect();
    pasteFrom(QClipboard::Selection);
}

void OneLineBox::dropEvent(QDropEvent *event)
{
    QMimeData line;
    line.setText(oneLine(event->mimeData()->text()));
    QDropEvent drop(event->position(), event->possibleActions(), &line, event->buttons(),
                    event->modifiers());
    drop.setDropAction(event->dropAction());
    QLineEdit::dropEvent(&drop);
    event->setDropAction(drop.dropAction());
    event->setAccepted(drop.isAccepted());
}

void OneLineBox::showLostCharacters(bool shown)
{
    if (m_lostCharactersShown == shown)
        return;
    m_lostCharactersShown = shown;
    update();
}

void OneLineBox::showDifferences(const QList<TextRange> &ranges)
{
    m_differences = ranges;
    m_markedText = text();
    update();
}

QList<QTextLayout::FormatRange> OneLineBox::marks() const
{
    constexpr int most = 200; // more than anyone would read
    QList<QTextLayout::FormatRange> marks;
    const auto mark = [&marks](const QList<TextRange> &ranges, const QTextCharFormat &format) {
        for (const TextRange &range : ranges)
            marks += {range.start, range.length, format};
    };
    if (text() == m_markedText)
        mark(m_differences.mid(0, most), differenceFormat(palette()));
    if (m_lostCharactersShown)
        mark(lostCharacters(text(), most), lostCharactersFormat(palette()));
    return marks;
}

void OneLineBox::inputMethodEvent(QInputMethodEvent *event)
{
    m_isComposing = !event->preeditString().isEmpty();
    QLineEdit::inputMethodEvent(event);
}

void OneLineBox::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    // What an input method composes stands in the line, but is not in the text yet.
    const QList<QTextLayout::FormatRange> marks =
        m_isComposing ? QList<QTextLayout::FormatRange>() : this->marks();
    if (!marks.isEmpty())
        paintMarks(marks);
}

// QLineEdit has no formats. The marks alone are painted over its text, which may be scrolled: the
// cursor tells by how much.
void OneLineBox::paintMarks(const QList<QTextLayout::FormatRange> &marks)
{
    QTextLayout layout(text(), font());
    QTextOption option;
    // As QLineEdit does.
    option.setTextDirection(text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout.setTextOption(option);
    layout.setFormats(marks);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    QPainter painter(this);
    painter.setClipRect(style()->subElementRect(QStyle::SE_LineEditContents, &frame, this));
    painter.setPen(Qt::transparent);
    const QRectF cursor = cursorRect();
    layout.draw(&painter, {cursor.center().x() - line.cursorToX(cursorPosition()), cursor.top()});
}

void OneLineBox::pasteFrom(QClipboard::Mode mode)
{
    const QString line = oneLine(QGuiApplication::clipboard()->text(mode));
    if (line.isEmpty() || isReadOnly())
        return; // keep the selection
    if (!hasSelectedText())
        endUndoStep();
    insert(line);
    endUndoStep();
}

// Moving the cursor ends an undo step, so it is moved away and back. A paste is then undone
// separately from what was typed before and after it.
void OneLineBox::endUndoStep()
{
    const int place = cursorPosition();
    setCursorPosition(place == 0 ? 1 : 0);
    setCursorPosition(place);
}
