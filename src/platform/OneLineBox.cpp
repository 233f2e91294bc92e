// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OneLineBox.h"

#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegularExpression>

QString oneLine(const QString &text)
{
    static const QRegularExpression atTheEnds(
        QStringLiteral("\\A[\\r\\n\\x{2028}\\x{2029}]+|[\\r\\n\\x{2028}\\x{2029}]+\\z"));
    static const QRegularExpression inside(QStringLiteral("\\r\\n|[\\r\\n\\x{2028}\\x{2029}]"));
    return QString(text).remove(atTheEnds).replace(inside, QStringLiteral(" "));
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
