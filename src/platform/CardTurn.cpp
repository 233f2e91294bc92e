// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CardTurn.h"

#include <QPainter>
#include <QStyle>

#include <cmath>
#include <utility>

void CardTurn::end(QWidget &card)
{
    const auto turns = card.findChildren<CardTurn *>(QString(), Qt::FindDirectChildrenOnly);
    for (CardTurn *turn : turns)
        turn->close();
}

void CardTurn::play(QWidget &card, const QPixmap &oldSide, const QPixmap &newSide,
                    const QBrush &behind)
{
    const int duration =
        card.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &card);
    if (duration <= 0 || !card.isVisible())
        return;
    auto *turn = new CardTurn(card, oldSide, newSide, behind);
    turn->m_turn.setDuration(duration);
    turn->show();
    turn->m_turn.start();
}

CardTurn::CardTurn(QWidget &card, QPixmap oldSide, QPixmap newSide, const QBrush &behind)
    : QWidget(&card), m_oldSide(std::move(oldSide)), m_newSide(std::move(newSide)), m_behind(behind)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(card.rect());
    m_turn.setStartValue(0.0);
    m_turn.setEndValue(1.0);
    m_turn.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_turn, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_turn, &QVariantAnimation::finished, this, &QWidget::close);
}

void CardTurn::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), m_behind);
    const double turned = m_turn.currentValue().toDouble();
    const double shown = std::abs(1 - 2 * turned);
    const double left = width() * (1 - shown) / 2;
    painter.drawPixmap(QRectF(left, 0, width() * shown, height()),
                       turned < 0.5 ? m_oldSide : m_newSide, {});
}
