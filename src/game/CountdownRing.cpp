// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/CountdownRing.h"

#include "platform/Appearance.h"
#include "platform/Motion.h"

#include <QAccessibleWidget>
#include <QPainter>

#include <algorithm>
#include <array>

namespace {

// Pixels, at the usual side.
constexpr int UsualSide = 84;
constexpr int RingWidth = 8;
constexpr int NumberHeight = 30;
constexpr int LastNumberHeight = 42;

constexpr int LastSeconds = 5;

using namespace std::chrono_literals;
constexpr auto PulseTime = 250ms;
constexpr auto FillingTime = 400ms;
constexpr auto TimeOutTime = 400ms;

// Degrees on the colour circle for levels 1 to 10: from the program's blue-green over blue, violet
// and red to gold.
constexpr std::array<int, 10> Hues{187, 205, 222, 245, 268, 292, 318, 340, 18, 36};

// Of the last seconds.
QColor alarmColour(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xFF, 0x6B, 0x6B) : QColor(0xC6, 0x28, 0x28);
}

QColor onAlarmColour(const QPalette &palette)
{
    return isDark(palette) ? Qt::black : Qt::white;
}

bool isTold(Integer left)
{
    return left == 10 || left == LastSeconds;
}

// A status bar, whose name is told when a change of it is announced.
class ToldCountdown final : public QAccessibleWidget
{
public:
    explicit ToldCountdown(QLabel &label)
        : QAccessibleWidget(&label, QAccessible::StatusBar), m_label(label)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        const QString left = m_label.text();
        return left + (left == QLatin1String("1") ? QStringLiteral(" second left")
                                                  : QStringLiteral(" seconds left"));
    }

private:
    QLabel &m_label;
};

QAccessibleInterface *makeCountdown(const QString & /*className*/, QObject *object)
{
    auto *ring = qobject_cast<CountdownRing *>(object);
    return ring ? new ToldCountdown(*ring) : nullptr;
}

// Of the part of the ring that has gone.
QColor trackColour(const QPalette &palette)
{
    return palette.color(QPalette::Window).darker(isDark(palette) ? 150 : 114);
}

} // namespace

CountdownRing::CountdownRing(QWidget *parent) : QLabel(parent)
{
    QAccessible::installFactory(makeCountdown);
    setAccessibleName(
        QStringLiteral("Countdown")); // without a name, each change of the text is told
    setSide(UsualSide);
}

void CountdownRing::setSide(int side)
{
    setFixedSize(side, side);
}

void CountdownRing::setSeconds(Integer left, Integer limit)
{
    const bool isTick = left == m_left - 1;
    m_left = left;
    m_limit = limit;
    m_isFilled = false;
    setText(left.toText());
    update();
    if (isTick && isTold(left)) {
        QAccessibleEvent nameChanged(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&nameChanged);
        Q_EMIT told();
    }
    if (isTick && isLastSeconds()) {
        Motion::end(*this);
        Motion::play(*this, rect(), PulseTime, [this](QPainter &painter, double t) {
            draw(painter, share(), 1 + 0.2 * (1 - t));
        });
    }
}

void CountdownRing::setLevel(Integer level)
{
    m_level = level;
    update();
}

void CountdownRing::playFilling()
{
    m_isFilled = true;
    update();
    Motion::end(*this);
    Motion::play(*this, rect(), FillingTime,
                 [this](QPainter &painter, double t) { draw(painter, t, 1); });
}

void CountdownRing::playTimeOut()
{
    Motion::end(*this);
    Motion::play(*this, rect(), TimeOutTime,
                 [this, colour = onAlarmColour(palette())](QPainter &painter, double t) {
                     painter.setPen(QPen(colour, 4));
                     const double radius = width() / 2.0 * (1 - t);
                     painter.drawEllipse(QRectF(rect()).center(), radius, radius);
                 });
}

QColor CountdownRing::colourOf(Integer level, const QPalette &palette)
{
    const int hue = Hues.at(static_cast<std::size_t>(level.toInt() - 1));
    return isDark(palette) ? QColor::fromHsl(hue, 190, 180) : QColor::fromHsl(hue, 200, 76);
}

bool CountdownRing::isLastSeconds() const
{
    return m_left <= LastSeconds && !m_isFilled;
}

double CountdownRing::share() const
{
    return m_isFilled ? 1 : double(m_left.toInt()) / std::max(m_limit.toInt(), 1);
}

void CountdownRing::draw(QPainter &painter, double share, double growth) const
{
    const double scale = double(width()) / UsualSide;
    const double half = RingWidth * scale / 2;
    const QRectF ring = QRectF(rect()).adjusted(half, half, -half, -half);
    const bool last = isLastSeconds();
    const QColor colour = last ? alarmColour(palette()) : colourOf(m_level, palette());

    painter.setPen(QPen(trackColour(palette()), RingWidth * scale));
    painter.setBrush(last ? QBrush(colour) : palette().window());
    painter.drawEllipse(ring);
    constexpr int FullCircle = 360 * 16;
    constexpr int Top = 90 * 16;
    painter.setPen(QPen(colour, RingWidth * scale, Qt::SolidLine, Qt::RoundCap));
    if (share > 0)
        painter.drawArc(ring, Top, -qRound(share * FullCircle));

    QFont type = font();
    type.setBold(true);
    type.setPixelSize(qRound((last ? LastNumberHeight : NumberHeight) * scale * growth));
    painter.setFont(type);
    painter.setPen(last ? onAlarmColour(palette()) : palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, text());
}

void CountdownRing::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, share(), 1);
}
