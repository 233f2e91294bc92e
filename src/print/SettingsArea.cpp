// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/SettingsArea.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

namespace {

constexpr int LeastHeight = 120; // pixels

} // namespace

SettingsArea::SettingsArea(QWidget *parent) : QScrollArea(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    // QScrollArea does this only for a focus that was inside it before.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget * /*old*/, QWidget *now) {
        if (now && isAncestorOf(now))
            ensureWidgetVisible(now);
    });
}

QSize SettingsArea::sizeHint() const
{
    return {leastWidth(), widget() ? widget()->sizeHint().height() : LeastHeight};
}

QSize SettingsArea::minimumSizeHint() const
{
    return {leastWidth(), LeastHeight};
}

bool SettingsArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

// The place of the scroll bar is always left free.
int SettingsArea::leastWidth() const
{
    const int controls = widget() ? widget()->minimumSizeHint().width() : 0;
    return controls + verticalScrollBar()->sizeHint().width();
}
