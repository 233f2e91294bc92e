// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Top10Row.h"

#include "platform/Appearance.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <numbers>

namespace {

// Pixels.
constexpr int LeastRowHeight = 27;
constexpr int RankWidth = 48;
constexpr int StarWidth = 32;
constexpr int ColumnGap = 20;
constexpr int MedalSide = 24;
constexpr double RowCorner = 6;

QColor mixed(const QColor &one, const QColor &other, double share)
{
    const auto part = [share](int a, int b) { return int(std::lround(a + (b - a) * share)); };
    return {part(one.red(), other.red()), part(one.green(), other.green()),
            part(one.blue(), other.blue())};
}

QPainterPath star(QPointF middle, double radius)
{
    constexpr int Points = 5;
    constexpr double Inner = 0.45;
    QPolygonF corners;
    for (int i = 0; i < 2 * Points; ++i) {
        const double angle = std::numbers::pi * (double(i) / Points - 0.5);
        const double distance = i % 2 == 0 ? radius : radius * Inner;
        corners << middle + QPointF(std::cos(angle), std::sin(angle)) * distance;
    }
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

// A disc on two ends of a ribbon.
void paintMedal(QPainter &painter, QPointF middle, const QColor &metal, const QColor &ribbon)
{
    constexpr double Radius = MedalSide / 2.0 - 1;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ribbon);
    for (const int side : {-1, 1}) {
        const QPointF top = middle + QPointF(side * 3, 5);
        painter.drawPolygon(
            QPolygonF({top + QPointF(-3, 0), top + QPointF(3, 0), top + QPointF(side * 4 + 3, 11),
                       top + QPointF(side * 4, 8), top + QPointF(side * 4 - 3, 11)}));
    }
    painter.setPen(QPen(metal.darker(150), 1.5));
    painter.setBrush(metal);
    painter.drawEllipse(middle, Radius, Radius);
}

QFont quietFont(QFont font)
{
    font.setPixelSize(QFontInfo(font).pixelSize() * 13 / 16);
    return font;
}

QFont pointsFont(QFont font)
{
    font.setBold(true);
    return font;
}

QFont medalFont(QFont font)
{
    constexpr int Largest = MedalSide * 3 / 4;
    font.setPixelSize(std::min(QFontInfo(font).pixelSize(), Largest));
    return pointsFont(font);
}

} // namespace

Top10Colours::Top10Colours(const QPalette &palette)
    : text(palette.color(QPalette::Text)), background(palette.color(QPalette::Base)),
      newEdge(accentColour(palette)), medals{QColor(0xF2, 0xB9, 0x1D), QColor(0xBC, 0xC6, 0xCE),
                                             QColor(0xD0, 0x8A, 0x4E)},
      onMedal(0x24, 0x1A, 0x08)
{
    quiet = quietColour(palette);
    freeLine = mixed(text, background, 0.7);
    otherBackground = mixed(background, text, 0.05);
    newBackground = mixed(background, newEdge, 0.2);
}

// Paints the text in columns. The text itself is for assistive tools.
class Top10Label final : public QLabel
{
public:
    Top10Label(int rank, QWidget *parent) : QLabel(parent)
    {
        setObjectName(QStringLiteral("lblTop10_%1").arg(rank));
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

    // A long name ends in an ellipsis instead of widening the dialog.
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return {1, QLabel::minimumSizeHint().height()};
    }

    void setEntry(const Top10Entry &entry, Top10Row::Name name)
    {
        m_entry = entry;
        m_isBeingTyped = name == Top10Row::Name::BeingTyped;
        setText(m_isBeingTyped ? unnamedRowText(entry) : rowText(entry));
        setToolTip(Qt::convertFromPlainText(text()));
        fit();
    }

    void setColumns(const Top10Columns &columns)
    {
        m_columns = columns;
        fit();
    }

    [[nodiscard]] Top10Columns columns() const
    {
        if (m_entry.Points == 0)
            return {};
        ensurePolished();
        return {QFontMetrics(quietFont(font())).horizontalAdvance(rowDate(m_entry)),
                QFontMetrics(pointsFont(font())).horizontalAdvance(m_entry.Points.toText())};
    }

    void setBold(bool bold)
    {
        m_isBold = bold;
        update();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        const Top10Colours colours(palette());
        QPainter painter(this);
        if (m_entry.Points == 0) {
            painter.setPen(QPen(colours.freeLine, 1, Qt::DashLine));
            painter.drawLine(0, height() / 2, width(), height() / 2);
            return;
        }
        const QFont usual = font();
        painter.setPen(colours.quiet);
        painter.setFont(quietFont(usual));
        painter.drawText(QRect(0, 0, m_columns.date, height()), Qt::AlignVCenter, rowDate(m_entry));
        painter.setPen(colours.text);
        painter.setFont(pointsFont(usual));
        painter.drawText(QRect(m_columns.date + ColumnGap, 0, m_columns.points, height()),
                         Qt::AlignRight | Qt::AlignVCenter, m_entry.Points.toText());
        painter.setFont(usual);
        painter.setPen(colours.quiet);
        painter.drawText(QRect(nameLeft() - ColumnGap, 0, ColumnGap, height()), Qt::AlignCenter,
                         QStringLiteral(":"));
        if (m_isBeingTyped)
            return;
        painter.setPen(colours.text);
        painter.setFont(m_isBold ? pointsFont(usual) : usual);
        const QRect place = rect().adjusted(nameLeft(), 0, 0, 0);
        // A name may have 65,535 characters, of which no more than these fit.
        const QString name = m_entry.PlayerName.left(2000);
        painter.drawText(place, Qt::AlignVCenter | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(name, Qt::ElideRight, place.width()));
    }

private:
    [[nodiscard]] int nameLeft() const { return m_columns.date + m_columns.points + 2 * ColumnGap; }

    void fit()
    {
        if (m_isBeingTyped)
            setFixedWidth(nameLeft());
        else {
            setMinimumWidth(1);
            setMaximumWidth(QWIDGETSIZE_MAX);
        }
        update();
    }

    Top10Entry m_entry;
    Top10Columns m_columns;
    bool m_isBeingTyped = false;
    bool m_isBold = false;
};

Top10Row::Top10Row(int rank, QWidget *parent)
    : QWidget(parent), m_rank(rank), m_label(new Top10Label(rank, this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(RankWidth, 0, StarWidth, 0);
    row->setSpacing(0);
    row->addWidget(m_label, 1);
}

QSize Top10Row::minimumSizeHint() const
{
    return QWidget::minimumSizeHint().expandedTo({0, LeastRowHeight});
}

void Top10Row::setEntry(const Top10Entry &entry, Name name)
{
    m_label->setEntry(entry, name);
    m_label->setAccessibleDescription(QStringLiteral("Place %1").arg(m_rank));
    update();
}

Top10Columns Top10Row::columns() const
{
    return m_label->columns();
}

void Top10Row::setColumns(const Top10Columns &columns)
{
    m_label->setColumns(columns);
}

void Top10Row::setNameBox(QLineEdit *box)
{
    if (box)
        layout()->addWidget(box);
}

void Top10Row::setNew(double shown)
{
    m_newShown = shown;
    m_label->setBold(shown > 0);
    update();
}

void Top10Row::paintEvent(QPaintEvent * /*event*/)
{
    const Top10Colours colours(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole = QRectF(rect()).adjusted(1, 1, -1, -1);
    if (m_rank % 2 == 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours.otherBackground);
        painter.drawRoundedRect(whole, RowCorner, RowCorner);
    }
    if (m_newShown > 0) {
        QRectF mark = whole;
        mark.setWidth(std::max(2 * RowCorner, whole.width() * m_newShown));
        painter.setPen(QPen(colours.newEdge, 2));
        painter.setBrush(colours.newBackground);
        painter.drawRoundedRect(mark, RowCorner, RowCorner);
        painter.setPen(QPen(colours.medals[0].darker(150), 1));
        painter.setBrush(colours.medals[0]);
        painter.drawPath(star({mark.right() - StarWidth / 2.0, whole.center().y()}, 9));
    }
    const QRectF place(0, 0, RankWidth, height());
    const bool hasMedal = m_rank <= int(colours.medals.size());
    if (hasMedal)
        paintMedal(painter, place.center() - QPointF(0, 2), colours.medals[std::size_t(m_rank - 1)],
                   colours.newEdge);
    painter.setPen(hasMedal ? colours.onMedal : colours.quiet);
    painter.setFont(hasMedal ? medalFont(m_label->font()) : m_label->font());
    painter.drawText(hasMedal ? place.translated(0, -2) : place, Qt::AlignCenter,
                     QString::number(m_rank));
}
