// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/SpeakerButton.h"

#include "platform/sndPlaySoundA.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyleOptionToolButton>
#include <QWidgetAction>

namespace {

// Pixels.
constexpr QSize ButtonSize(52, 32);
constexpr int ArrowWidth = 16;
constexpr int SpeakerSide = 24;

constexpr int VolumeStep = 10;

// In a square of 24: a box with a cone, and waves or a cross beside it.
void paintSpeaker(QPainter &painter, const QColor &colour, bool isMuted, int volume)
{
    QPainterPath body(QPointF(3, 9));
    body.lineTo(7, 9);
    body.lineTo(12, 4.5);
    body.lineTo(12, 19.5);
    body.lineTo(7, 15);
    body.lineTo(3, 15);
    body.closeSubpath();
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(colour);
    painter.drawPath(body);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap));
    if (isMuted) {
        painter.drawLine(QPointF(15.5, 9), QPointF(21.5, 15));
        painter.drawLine(QPointF(21.5, 9), QPointF(15.5, 15));
        return;
    }
    // One wave for each third of the volume.
    const int waves = (volume + 33) / 34;
    for (int wave = 1; wave <= waves; ++wave) {
        const double radius = 1 + 3.2 * wave;
        painter.drawArc(QRectF(12.5 - radius, 12 - radius, 2 * radius, 2 * radius), -45 * 16,
                        90 * 16);
    }
}

} // namespace

SpeakerButton::SpeakerButton(QWidget *parent)
    : QToolButton(parent), m_volume(new QSlider(Qt::Horizontal))
{
    setAccessibleName(QStringLiteral("Mute music"));
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard where it is
    setShortcut(Qt::CTRL | Qt::Key_M);
    setPopupMode(QToolButton::MenuButtonPopup);

    m_volume->setObjectName(QStringLiteral("volume"));
    m_volume->setAccessibleName(QStringLiteral("Music volume"));
    m_volume->setRange(0, 100);
    m_volume->setSingleStep(VolumeStep);
    m_volume->setPageStep(2 * VolumeStep);
    m_volume->setMinimumWidth(140);
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->addWidget(new QLabel(QStringLiteral("Volume")));
    layout->addWidget(m_volume);
    row->setFocusProxy(m_volume);
    auto *menu = new QMenu(this);
    auto *action = new QWidgetAction(menu);
    action->setDefaultWidget(row);
    menu->addAction(action);
    setMenu(menu);
    connect(menu, &QMenu::aboutToShow, m_volume, [this] { m_volume->setFocus(); });
    connect(m_volume, &QSlider::valueChanged, this, &SpeakerButton::setVolume);
    connect(this, &QToolButton::toggled, this, &SpeakerButton::mute);
    showTip();
}

QSize SpeakerButton::sizeHint() const
{
    return ButtonSize;
}

// Another window's button may have changed what is set.
void SpeakerButton::showEvent(QShowEvent *event)
{
    const QSignalBlocker block(m_volume);
    m_volume->setValue(soundVolume());
    setChecked(isSoundMuted());
    QToolButton::showEvent(event);
}

void SpeakerButton::mute(bool muted)
{
    setSoundMuted(muted);
    showTip();
    update();
}

// Setting a volume ends the muting.
void SpeakerButton::setVolume(int percent)
{
    setSoundVolume(percent);
    setChecked(false);
    showTip();
    update();
}

void SpeakerButton::showTip()
{
    setToolTip(isSoundMuted() ? QStringLiteral("Hear the music again (Ctrl+M)")
                              : QStringLiteral("Mute the music (Ctrl+M)"));
    setAccessibleDescription(QStringLiteral("Volume %1 percent").arg(soundVolume()));
}

void SpeakerButton::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        m_volume->setValue(m_volume->value() + VolumeStep);
        break;
    case Qt::Key_Down:
        m_volume->setValue(m_volume->value() - VolumeStep);
        break;
    default:
        QToolButton::keyPressEvent(event);
    }
}

void SpeakerButton::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.icon = {};
    option.text.clear();
    QPainter painter(this);
    style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int left = (width() - ArrowWidth - SpeakerSide) / 2;
    painter.translate(left, (height() - SpeakerSide) / 2.0);
    const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    paintSpeaker(painter, palette().color(group, QPalette::ButtonText), isSoundMuted(),
                 soundVolume());
}
