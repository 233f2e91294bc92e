// SPDX-License-Identifier: GPL-3.0-or-later
// Short animations. A motion is painted on top of a widget while the widget works on as usual: it
// takes no input, delays nothing and removes itself.
#pragma once

#include <QBrush>
#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

#include <chrono>
#include <functional>

class Motion final : public QWidget
{
    Q_OBJECT

public:
    // Paints one frame in the coordinates of the motion's area. t: the share of its time that has
    // passed, 0 to 1.
    using Paint = std::function<void(QPainter &painter, double t)>;

    // Plays on a part of the widget. Does nothing if the widget is not visible, its style has no
    // animations or the system asks for reduced motion.
    static void play(QWidget &widget, const QRect &area, std::chrono::milliseconds duration,
                     const Paint &paint);
    // Turns a card over: the old side gets narrower, then the new side gets wider, in the time that
    // the style has for animations. `behind` fills the area beside the narrow card.
    static void turnOver(QWidget &card, const QPixmap &oldSide, const QPixmap &newSide,
                         const QBrush &behind);
    // Removes the motions on the widget that still play.
    static void end(QWidget &widget);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Motion(QWidget &widget, const QRect &area, Paint paint);

    Paint m_paint;
    QVariantAnimation m_time;
};
