// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MSFlexGrid.h"

#include "platform/Screen.h"
#include "runtime/RunTimeError.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <optional>

namespace {

// No cell can show so many characters on one line.
constexpr int LongestShown = 1000;

QString onOneLine(const QString &text)
{
    return text.left(LongestShown).simplified();
}

// Only a rich text is wrapped in a tool tip.
QString wrappingToolTip(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
}

// So that a header in a narrow column is not cut.
void shrinkToFit(QStyleOptionViewItem &option)
{
    constexpr int margin = 8;
    const int room = option.rect.width() - margin;
    const int needed = QFontMetrics(option.font).horizontalAdvance(option.text);
    if (needed <= room || room <= 0)
        return;
    option.font.setPixelSize(std::max(1, option.font.pixelSize() * room / needed));
    option.fontMetrics = QFontMetrics(option.font);
}

class OneLineDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QString displayText(const QVariant &value,
                                      const QLocale & /*locale*/) const override
    {
        return onOneLine(value.toString());
    }

protected:
    // The header and the item numbers have the background of the window.
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.row() == 0 || index.column() == 0)
            option->backgroundBrush = option->palette.window();
        if (index.row() == 0)
            shrinkToFit(*option);
        if (index.column() == 0)
            option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
        // In a low row, letters such as g would be cut below; above, there is room for accents.
        if (option->rect.height() < option->fontMetrics.height())
            option->displayAlignment.setFlag(Qt::AlignVCenter, false).setFlag(Qt::AlignBottom);
    }
};

std::optional<GridMove> moveOf(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return GridMove::RowUp;
    case Qt::Key_Down:
        return GridMove::RowDown;
    case Qt::Key_PageUp:
        return GridMove::PageUp;
    case Qt::Key_PageDown:
        return GridMove::PageDown;
    case Qt::Key_Home:
        return GridMove::First;
    case Qt::Key_End:
        return GridMove::Last;
    default:
        return std::nullopt;
    }
}

} // namespace

MSFlexGrid::MSFlexGrid(QWidget *parent) : QTableWidget(parent)
{
    setItemDelegate(new OneLineDelegate(this));
    horizontalHeader()->hide();
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection); // by assistive tools only
    setWordWrap(false);
    setAutoScroll(false);
    setTabKeyNavigation(false); // Tab leaves the grid
    connect(this, &QTableWidget::cellClicked, this, &MSFlexGrid::Click);
}

void MSFlexGrid::setSize(int rows, int columns)
{
    setRowCount(rows);
    setColumnCount(columns);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            if (!item(row, column))
                setItem(row, column, new QTableWidgetItem);
    layOutRows();
}

void MSFlexGrid::Clear()
{
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columnCount(); ++column) {
            setText(row, column, {});
            setCellBold(row, column, false);
            setCellBackColour(row, column, White);
        }
    }
}

void MSFlexGrid::setText(int row, int column, const QString &text)
{
    cell(row, column).setText(text);
    // Qt's headers are hidden and have the texts for assistive tools only: the view, which would
    // lay out all rows again, needs no notice.
    const QSignalBlocker silence(model());
    if (row == 0)
        setHorizontalHeaderItem(column, new QTableWidgetItem(text));
    if (column == 0)
        setVerticalHeaderItem(row, new QTableWidgetItem(text));
}

QString MSFlexGrid::text(int row, int column) const
{
    const QTableWidgetItem *found = item(row, column);
    return found ? found->text() : QString();
}

void MSFlexGrid::setCellBold(int row, int column, bool bold)
{
    QTableWidgetItem &item = cell(row, column);
    if (item.font().bold() == bold)
        return;
    QFont boldFont;
    boldFont.setBold(true);
    item.setData(Qt::FontRole, bold ? QVariant(boldFont) : QVariant());
}

bool MSFlexGrid::cellBold(int row, int column) const
{
    return cell(row, column).font().bold();
}

void MSFlexGrid::setCellBackColour(int row, int column, CellColour colour)
{
    // White means the background of the palette, which may be dark.
    QTableWidgetItem &item = cell(row, column);
    const bool yellow = colour == Yellow;
    item.setData(Qt::BackgroundRole, yellow ? QVariant(QBrush(Qt::yellow)) : QVariant());
    item.setData(Qt::ForegroundRole, yellow ? QVariant(QBrush(Qt::black)) : QVariant());
    if (column == columnCount() - 1)
        viewport()->update(); // paintEvent fills the rest of the row
}

MSFlexGrid::CellColour MSFlexGrid::cellBackColour(int row, int column) const
{
    return cell(row, column).data(Qt::BackgroundRole).isValid() ? Yellow : White;
}

void MSFlexGrid::setColWidth(int column, int twips)
{
    setColumnWidth(column, pixels(twips));
}

int MSFlexGrid::ColWidth(int column) const
{
    return columnWidth(column) * TwipsPerPixel;
}

void MSFlexGrid::setVisibleRows(int rows)
{
    m_visibleRows = rows;
    layOutRows();
}

int MSFlexGrid::RowHeight(int row) const
{
    return rowHeight(row) * TwipsPerPixel;
}

// Continues the rows from the last column to the right edge. That column has no line at its end.
void MSFlexGrid::paintEvent(QPaintEvent *event)
{
    QTableWidget::paintEvent(event);
    const int last = columnCount() - 1;
    const int left = columnViewportPosition(last) + columnWidth(last) - 1;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int lineColour = style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this);
    QPainter painter(viewport());
    painter.setPen(QColor::fromRgba(static_cast<QRgb>(lineColour)));
    for (int row = 0; row < rowCount(); ++row) {
        const QRect rest(left, rowViewportPosition(row), viewport()->width() - left,
                         rowHeight(row));
        const bool yellow = cellBackColour(row, last) == Yellow;
        painter.fillRect(rest, yellow     ? QBrush(Qt::yellow)
                               : row == 0 ? palette().window()
                                          : palette().base());
        painter.drawLine(rest.bottomLeft(), rest.bottomRight());
    }
}

void MSFlexGrid::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    layOutRows();
}

void MSFlexGrid::wheelEvent(QWheelEvent *event)
{
    // Ctrl or Shift scroll by a page, as they do on a scroll bar.
    const bool byPage = (event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
    const int rowsPerStep = byPage ? m_visibleRows - 1 : QApplication::wheelScrollLines();
    const int rows = -m_wheel.turned(event->angleDelta().y() * rowsPerStep);
    if (rows != 0)
        Q_EMIT wheeled(rows);
}

void MSFlexGrid::keyPressEvent(QKeyEvent *event)
{
    if (const auto move = moveOf(event->key()))
        Q_EMIT moved(*move);
    else if (event->key() == Qt::Key_Space)
        Q_EMIT Click(Row(), Col());
    else
        event->ignore(); // Enter is for the window's default button
}

bool MSFlexGrid::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTableWidget::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    if (isCut(index))
        QToolTip::showText(help->globalPos(), wrappingToolTip(text(index.row(), index.column())),
                           viewport(), visualRect(index));
    else
        QToolTip::hideText();
    return true;
}

// Mouse and keys select nothing.
QItemSelectionModel::SelectionFlags MSFlexGrid::selectionCommand(const QModelIndex & /*index*/,
                                                                 const QEvent * /*event*/) const
{
    return QItemSelectionModel::NoUpdate;
}

void MSFlexGrid::selectionChanged(const QItemSelection &selected,
                                  const QItemSelection & /*deselected*/)
{
    if (selected.isEmpty())
        return;
    const QModelIndex cell = selected.constFirst().topLeft();
    clearSelection();
    Q_EMIT Click(cell.row(), cell.column());
}

void MSFlexGrid::layOutRows()
{
    const int height = viewport()->height();
    for (int row = 0; row < rowCount(); ++row) {
        const int top = height * row / m_visibleRows;
        setRowHeight(row, std::max(1, height * (row + 1) / m_visibleRows - top));
    }
    const int row = height / m_visibleRows;
    const int smallest = row < 12 ? 8 : 9;
    constexpr int largest = 22;
    QFont rowFont = font();
    rowFont.setPixelSize(std::clamp(row * 7 / 10, smallest, largest));
    setFont(rowFont);
}

QTableWidgetItem &MSFlexGrid::cell(int row, int column) const
{
    QTableWidgetItem *found = item(row, column);
    if (!found)
        throw RunTimeError(RunTimeError::SubscriptOutOfRange);
    return *found;
}

bool MSFlexGrid::isCut(const QModelIndex &index) const
{
    if (!index.isValid())
        return false;
    const QString shown = onOneLine(text(index.row(), index.column()));
    QFont cellFont = font();
    cellFont.setBold(cellBold(index.row(), index.column()));
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    return text(index.row(), index.column()) != shown ||
           QFontMetrics(cellFont).horizontalAdvance(shown) + margin >= visualRect(index).width();
}
