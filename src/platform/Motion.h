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

    static constexpr std::chrono::milliseconds LongestTime{400};

    // What the widget's style has for an animation, at most LongestTime; 0 if it has none or the
    // system asks for reduced motion.
    [[nodiscard]] static std::chrono::milliseconds usualTime(const QWidget &widget);
    // Plays on a part of the widget, at most for LongestTime. Does nothing if the widget is not
    // visible or its usual time is 0.
    static void play(QWidget &widget, const QRect &area, std::chrono::milliseconds duration,
                     const Paint &paint);
    // Turns a card over: the old side gets narrower, then the new side gets wider, in the
    // usual time. `behind` fills the area beside the narrow card.
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
