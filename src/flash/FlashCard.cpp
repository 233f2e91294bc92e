// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/FlashCard.h"

#include "platform/Motion.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QTextBlock>
#include <QTextOption>

#include <algorithm>
#include <array>

namespace {

constexpr std::array TypeSizes{32, 28, 24, 20, 18, 16, 14, 12}; // points

bool isBlank(const QTextBlock &line)
{
    return line.text().trimmed().isEmpty();
}

void hideEmptyLinesAround(QTextDocument &document)
{
    if (document.toPlainText().trimmed().isEmpty())
        return;
    for (QTextBlock line = document.firstBlock(); isBlank(line); line = line.next())
        line.setVisible(false);
    for (QTextBlock line = document.lastBlock(); isBlank(line); line = line.previous())
        line.setVisible(false);
    document.markContentsDirty(0, document.characterCount());
}

QString shownText(const QTextDocument &document)
{
    QStringList lines;
    for (QTextBlock line = document.firstBlock(); line.isValid(); line = line.next())
        if (line.isVisible())
            lines += line.text();
    return lines.join(u'\n');
}

} // namespace

FlashCard::FlashCard(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCursor(Qt::PointingHandCursor);
    viewport()->setCursor(Qt::PointingHandCursor);
    QTextOption centred(Qt::AlignHCenter);
    centred.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document()->setDefaultTextOption(centred);
}

void FlashCard::setText(const QString &text, Side side)
{
    Motion::end(*this);
    if (side != m_side) {
        m_side = side;
        style()->polish(this);
    }
    setPlainText(text);
    hideEmptyLinesAround(*document());
    fitType();
}

void FlashCard::turnTo(const QString &text, Side side)
{
    if (side == m_side) {
        setText(text, side);
        return;
    }
    Motion::end(*this);
    const QPixmap oldSide = picture();
    setText(text, side);
    Motion::turnOver(*this, oldSide, picture(), parentWidget()->palette().window());
}

// With transparent corners; grab() would fill them.
QPixmap FlashCard::picture()
{
    QPixmap picture(size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    render(&picture, {}, {}, DrawChildren);
    return picture;
}

void FlashCard::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
        event->key() == Qt::Key_Space)
        Q_EMIT Click();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void FlashCard::mouseReleaseEvent(QMouseEvent *event)
{
    // Otherwise Qt would send it to the card itself, too.
    event->accept();
    if (event->button() == Qt::LeftButton && viewport()->rect().contains(event->pos()))
        Q_EMIT Click();
}

// The margins above and below the text do not belong to the viewport.
bool FlashCard::event(QEvent *event)
{
    const bool pressed = event->type() == QEvent::MouseButtonPress;
    if (!pressed && event->type() != QEvent::MouseButtonRelease)
        return QPlainTextEdit::event(event);
    const auto &mouse = static_cast<QMouseEvent &>(*event);
    if (!pressed && mouse.button() == Qt::LeftButton && rect().contains(mouse.pos()))
        Q_EMIT Click();
    return true;
}

void FlashCard::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    fitType();
}

void FlashCard::fitType()
{
    const int margin = int(document()->documentMargin());
    // A text that fills the last pixel could already be scrolled.
    const QRect room = contentsRect().adjusted(0, 0, -2 * margin, -2 * margin - 1);
    const QString text = shownText(*document());
    QRect needed;
    QFont type = font();
    const auto fits = [&](int size) {
        // A smaller type is better than a broken word; in the smallest the document breaks it.
        const int breaks = size == TypeSizes.back() ? int(Qt::TextWrapAnywhere) : 0;
        type.setPointSize(size);
        needed = QFontMetrics(type).boundingRect(
            room, int(Qt::AlignHCenter) | int(Qt::TextWordWrap) | breaks, text);
        return room.contains(needed);
    };
    // The smallest size first: a text that is too long for it is measured only once.
    const bool fitsAtAll = fits(TypeSizes.back());
    if (fitsAtAll) {
        for (const int size : TypeSizes)
            if (fits(size))
                break;
    }
    setVerticalScrollBarPolicy(fitsAtAll ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    if (type != document()->defaultFont())
        document()->setDefaultFont(type);
    // The margin above the document is laid out with its first line, which may be hidden.
    const int lostMargin = document()->firstBlock().isVisible() ? 0 : margin;
    const int space = std::max(0, (room.height() - needed.height()) / 2);
    setViewportMargins(0, space + lostMargin, 0, 0);
}
