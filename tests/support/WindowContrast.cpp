// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/WindowContrast.h"

#include "support/Contrast.h"
#include "support/Controls.h"
#include "support/Layout.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTableWidget>
#include <QTextEdit>

#include <algorithm>

using namespace Contrast;
using namespace Qt::StringLiterals;

namespace {

// So that thin strokes of letters have their full colour somewhere.
constexpr int Enlarged = 3;

class Picture
{
public:
    explicit Picture(QWidget &window) : Picture(window, window.rect()) {}
    // Of a part of the window.
    Picture(QWidget &window, const QRect &place)
        : m_place(place & window.rect()), m_image(m_place.size() * Enlarged, QImage::Format_RGB32)
    {
        m_image.setDevicePixelRatio(Enlarged);
        window.render(&m_image, QPoint(), m_place);
    }

    [[nodiscard]] QImage part(const QRect &place) const
    {
        const QRect seen = (place & m_place).translated(-m_place.topLeft());
        return m_image.copy(QRect(seen.topLeft() * Enlarged, seen.size() * Enlarged));
    }
    // At a place between pixels.
    [[nodiscard]] QColor at(QPointF place) const
    {
        return m_image.pixelColor(((place - m_place.topLeft()) * Enlarged).toPoint());
    }
    [[nodiscard]] bool contains(QPointF place) const
    {
        return QRectF(m_place).adjusted(0, 0, -1, -1).contains(place);
    }

private:
    QRect m_place;
    QImage m_image;
};

struct Text
{
    QString name;
    QRect place; // in the window
    bool isEnabled = true;
};

// What can be seen of a part of a control.
QRect seen(const QWidget &control, const QRect &part)
{
    const QRect visible = control.visibleRegion().boundingRect() & part;
    return visible.translated(Layout::placeOf(control).topLeft());
}

bool hasText(const QWidget &control)
{
    if (const auto *label = qobject_cast<const QLabel *>(&control))
        return !label->text().isEmpty();
    if (const auto *button = qobject_cast<const QPushButton *>(&control))
        // The tiles of letters may be turning.
        return !button->text().isEmpty() && !button->inherits("LetterTile");
    if (const auto *box = qobject_cast<const QLineEdit *>(&control))
        return !box->displayText().isEmpty() || !box->placeholderText().isEmpty();
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(&control))
        return !text->toPlainText().isEmpty();
    if (const auto *text = qobject_cast<const QTextEdit *>(&control))
        return !text->toPlainText().isEmpty();
    return control.inherits("QuietLabel") && !control.accessibleName().isEmpty();
}

QRect titleOf(const QGroupBox &group)
{
    QStyleOptionGroupBox option;
    option.initFrom(&group);
    option.text = group.title();
    option.lineWidth = 1;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    return group.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                         &group);
}

QRect contentsOf(const QAbstractButton &choice, QStyle::SubElement element)
{
    QStyleOptionButton option;
    option.initFrom(&choice);
    option.text = choice.text();
    return choice.style()->subElementRect(element, &option, &choice);
}

template <class Menu> void addActions(QList<Text> &texts, const Menu &menu)
{
    for (QAction *action : menu.actions())
        if (action->isVisible() && !action->isSeparator())
            texts +=
                {action->text(), seen(menu, menu.actionGeometry(action).adjusted(4, 3, -4, -3)),
                 action->isEnabled()};
}

void addCells(QList<Text> &texts, const QTableWidget &table)
{
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = 0; column < table.columnCount(); ++column)
            if (const auto *item = table.item(row, column); item && !item->text().isEmpty())
                texts +=
                    {u"row %1"_s.arg(row),
                     seen(*table.viewport(), table.visualItemRect(item)).adjusted(2, 0, -2, -2),
                     true};
}

void addItems(QList<Text> &texts, const QListWidget &list)
{
    for (int i = 0; i < list.count(); ++i)
        texts += {list.objectName() + u" item"_s,
                  seen(*list.viewport(), list.visualItemRect(list.item(i))), list.isEnabled()};
}

void addTexts(QList<Text> &texts, const QWidget &control)
{
    const QString name = control.objectName();
    const bool isEnabled = control.isEnabled();
    if (const auto *group = qobject_cast<const QGroupBox *>(&control)) {
        if (!group->title().isEmpty())
            texts += {name, seen(control, titleOf(*group)), isEnabled};
    } else if (const auto *option = qobject_cast<const QRadioButton *>(&control)) {
        texts +=
            {name, seen(control, contentsOf(*option, QStyle::SE_RadioButtonContents)), isEnabled};
    } else if (const auto *box = qobject_cast<const QCheckBox *>(&control)) {
        texts += {name, seen(control, contentsOf(*box, QStyle::SE_CheckBoxContents)), isEnabled};
    } else if (const auto *bar = qobject_cast<const QMenuBar *>(&control)) {
        addActions(texts, *bar);
    } else if (const auto *table = qobject_cast<const QTableWidget *>(&control)) {
        addCells(texts, *table);
    } else if (const auto *list = qobject_cast<const QListWidget *>(&control)) {
        addItems(texts, *list);
    } else if (hasText(control)) {
        // Without the frames of buttons and boxes.
        const int frame = qobject_cast<const QLabel *>(&control) ? 0 : 5;
        texts +=
            {name, seen(control, control.rect().adjusted(frame, frame, -frame, -frame)), isEnabled};
    }
}

QList<const QWidget *> visibleParts(const QWidget &window)
{
    QList<const QWidget *> parts;
    for (const QWidget *part : window.findChildren<QWidget *>())
        if (part->window() == &window && !part->visibleRegion().isEmpty())
            parts += part;
    return parts;
}

// The strongest contrast of what is within `depth` pixels of an edge to what is just outside of it.
double edgeContrast(const Picture &picture, QPointF outside, QPointF inwards, int depth)
{
    double best = 0;
    for (int step = 0; step <= depth * Enlarged; ++step)
        best = std::max(
            best, contrast(picture.at(outside), picture.at(outside + inwards * step / Enlarged)));
    return best;
}

// The weakest of the four edges, measured in their middles. Edges at the window's own edge count
// as seen.
double borderContrast(const Picture &picture, const QRect &place)
{
    constexpr double gap = 1.5;
    constexpr int depth = 5;
    const QRectF frame(place);
    const QPointF middle = frame.center();
    double weakest = 21;
    for (const auto &[edge, inwards] :
         {std::pair(QPointF(frame.left(), middle.y()), QPointF(1, 0)),
          std::pair(QPointF(frame.right(), middle.y()), QPointF(-1, 0)),
          std::pair(QPointF(middle.x(), frame.top()), QPointF(0, 1)),
          std::pair(QPointF(middle.x(), frame.bottom()), QPointF(0, -1))}) {
        const QPointF outside = edge - inwards * gap;
        if (picture.contains(outside))
            weakest = std::min(weakest, edgeContrast(picture, outside, inwards, depth));
    }
    return weakest;
}

// Empty for a control without a border of its own.
QRect borderOf(const QWidget &control)
{
    if (const auto *option = qobject_cast<const QRadioButton *>(&control))
        return contentsOf(*option, QStyle::SE_RadioButtonIndicator);
    if (const auto *box = qobject_cast<const QCheckBox *>(&control))
        return contentsOf(*box, QStyle::SE_CheckBoxIndicator);
    const bool hasBorder =
        qobject_cast<const QLineEdit *>(&control) ||
        qobject_cast<const QPlainTextEdit *>(&control) ||
        qobject_cast<const QTextEdit *>(&control) ||
        (qobject_cast<const QPushButton *>(&control) && !control.inherits("LetterTile")) ||
        control.inherits("SpeakerButton") || control.objectName() == u"lstPrinter"_s ||
        control.objectName() == u"lstExportWords"_s;
    return hasBorder ? control.rect() : QRect();
}

QRect focusFrameOf(const QWidget &control)
{
    if (const auto *option = qobject_cast<const QRadioButton *>(&control))
        return contentsOf(*option, QStyle::SE_RadioButtonFocusRect);
    if (const auto *box = qobject_cast<const QCheckBox *>(&control))
        return contentsOf(*box, QStyle::SE_CheckBoxFocusRect);
    return borderOf(control);
}

// The thumb against its track, and the arrows against what is behind them.
double barContrast(const Picture &picture, const QScrollBar &bar)
{
    const auto part = [&](QStyle::SubControl control) {
        return seen(bar, Controls::placeOf(bar, control));
    };
    double weakest = 21;
    for (const auto arrow : {QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine})
        if (const QRect place = part(arrow); !place.isEmpty())
            weakest =
                std::min(weakest, Seen(picture.part(place.adjusted(3, 3, -3, -3))).contrastOfInk());
    const QRect thumb = part(QStyle::SC_ScrollBarSlider);
    const QRect track = part(QStyle::SC_ScrollBarGroove);
    // Just below or right of the thumb, or else just above or left of it.
    const QPoint step = bar.orientation() == Qt::Vertical ? QPoint(0, thumb.height() / 2 + 3)
                                                          : QPoint(thumb.width() / 2 + 3, 0);
    for (const QPoint beside : {thumb.center() + step, thumb.center() - step})
        if (!thumb.isEmpty() && track.contains(beside) && std::max(step.x(), step.y()) > 9)
            return std::min(weakest, contrast(picture.at(beside), picture.at(thumb.center())));
    return weakest;
}

QString weak(const QString &name, double contrast)
{
    return u"%1: %2"_s.arg(name).arg(contrast, 0, 'f', 2);
}

} // namespace

QStringList WindowContrast::weakTexts(QWidget &window)
{
    QList<Text> texts;
    if (const auto *menu = qobject_cast<QMenu *>(&window))
        addActions(texts, *menu);
    for (const QWidget *part : visibleParts(window))
        addTexts(texts, *part);
    const Picture picture(window);
    QStringList weakOnes;
    for (const Text &text : texts) {
        if (text.place.isEmpty())
            continue;
        const Seen found(picture.part(text.place));
        if (found.contrastOfInk() < (text.isEnabled ? ReadableText : ReadableMark))
            weakOnes += text.name + u": "_s + found.text();
    }
    return weakOnes;
}

QStringList WindowContrast::weakBorders(QWidget &window)
{
    const Picture picture(window);
    QStringList weakOnes;
    for (const QWidget *part : visibleParts(window)) {
        const QRect border = seen(*part, borderOf(*part));
        const auto *bar = qobject_cast<const QScrollBar *>(part);
        if ((border.isEmpty() && !bar) || !part->isEnabled())
            continue;
        const double found = bar ? barContrast(picture, *bar) : borderContrast(picture, border);
        if (found < ReadableMark)
            weakOnes += weak(part->objectName(), found);
    }
    return weakOnes;
}

QStringList WindowContrast::weakFocusFrames(QWidget &window)
{
    QStringList weakOnes;
    const QPointer<QWidget> before = QApplication::focusWidget();
    for (const QWidget *part : visibleParts(window)) {
        auto *control = const_cast<QWidget *>(part);
        const QRect frame = focusFrameOf(*part);
        if (frame.isEmpty() || !part->isEnabled() || (part->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        control->setFocus(Qt::TabFocusReason);
        if (!control->hasFocus())
            continue;
        constexpr int around = 4;
        const QRect place = seen(*part, frame);
        const Picture picture(window, place.adjusted(-around, -around, around, around));
        const double found = borderContrast(picture, place);
        if (found < ReadableMark)
            weakOnes += weak(part->objectName(), found);
    }
    if (before)
        before->setFocus();
    return weakOnes;
}
