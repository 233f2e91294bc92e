// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/StepBar.h"

#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

StepBar::StepBar(QWidget *parent) : QScrollBar(Qt::Vertical, parent)
{
    setInvertedAppearance(true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(22, 34); // as high as a text box: only the arrows fit
    connect(this, &QAbstractSlider::actionTriggered, this, &StepBar::raiseUpwards);
}

// QScrollBar's upper arrow lowers the value, even with an inverted appearance.
void StepBar::raiseUpwards(int action)
{
    switch (action) {
    case SliderSingleStepSub:
        setSliderPosition(std::min(maximum(), value() + singleStep()));
        break;
    case SliderSingleStepAdd:
        setSliderPosition(std::max(minimum(), value() - singleStep()));
        break;
    case SliderPageStepSub:
        setSliderPosition(std::min(maximum(), value() + pageStep()));
        break;
    case SliderPageStepAdd:
        setSliderPosition(std::max(minimum(), value() - pageStep()));
        break;
    case SliderToMinimum:
        setSliderPosition(maximum());
        break;
    case SliderToMaximum:
        setSliderPosition(minimum());
        break;
    default:
        break;
    }
}

void StepBar::setBox(QWidget *box)
{
    m_box = box;
    box->installEventFilter(this);
}

bool StepBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_box || event->type() != QEvent::Wheel)
        return QScrollBar::eventFilter(watched, event);
    turn(*static_cast<QWheelEvent *>(event));
    return true;
}

void StepBar::wheelEvent(QWheelEvent *event)
{
    turn(*event);
}

void StepBar::turn(QWheelEvent &event)
{
    const bool isBoxInUse = m_box && m_box->hasFocus();
    event.setAccepted(isBoxInUse || hasFocus());
    if (!event.isAccepted())
        return;
    const int steps = m_wheel.turned(event.angleDelta().y());
    if (steps != 0 && isBoxInUse)
        Q_EMIT boxStepped();
    for (int i = 0; i < std::abs(steps); ++i)
        triggerAction(steps > 0 ? SliderSingleStepSub : SliderSingleStepAdd);
}
