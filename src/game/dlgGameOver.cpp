// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/dlgGameOver.h"

#include "core/Module1.h"
#include "game/Music.h"
#include "game/Top10File.h"
#include "game/Top10Note.h"
#include "game/Top10Row.h"
#include "game/ui_dlgGameOver.h"
#include "platform/Motion.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"
#include "platform/Screen.h"
#include "runtime/Blanks.h"

#include <QScreen>

#include <algorithm>

using namespace Module1;

namespace {

// Pixels: the dialog's width with the title's usual type.
constexpr int WidthOfUsualType = 680;
constexpr int UsualTitleType = 26;

std::size_t indexOf(Integer row)
{
    return static_cast<std::size_t>(row.toInt() - 1);
}

} // namespace

dlgGameOver::dlgGameOver(Music &music, QWidget *parent)
    : DialogForm(parent), m_ui(std::make_unique<Ui::dlgGameOver>()), m_music(music)
{
    m_ui->setupUi(this);
    makeRows();
    for (QWidget *control : findChildren<QWidget *>())
        control->ensurePolished(); // the style sheet makes some of them larger
    // It grows with the type.
    openWithSize(*this, {WidthOfUsualType * m_ui->lblTitle->fontInfo().pixelSize() / UsualTitleType,
                         height()});
    openAsLastClosed();
    onClick(m_ui->cmdEnter, &dlgGameOver::cmdEnter_Click);
    onClick(m_ui->cmdReset, &dlgGameOver::cmdReset_Click);
    onClick(m_ui->cmdClose, &dlgGameOver::cmdClose_Click);
}

dlgGameOver::~dlgGameOver() = default;

void dlgGameOver::setTitle(const QString &title)
{
    m_ui->lblTitle->setText(title);
}

void dlgGameOver::makeRows()
{
    for (int row = 1; row <= int(m_rows.size()); ++row) {
        auto *widget = new Top10Row(row, m_ui->rowPanel);
        m_ui->rowLayout->addWidget(widget, 1);
        m_rows[indexOf(row)] = widget;
    }
}

Top10Row &dlgGameOver::rowWidget(Integer row) const
{
    return *m_rows[indexOf(row)];
}

void dlgGameOver::Form_Load()
{
    const Integer score = gScore;
    m_newRow = gViewTop10Only ? Integer(0) : rowOfScore(gTop10, score);
    m_namedRow = m_newRow;
    if (m_newRow != 0) {
        enterScore(gTop10, m_newRow, score, QDate::currentDate());
        rowWidget(m_newRow).setNameBox(m_ui->txtName);
        showPrize();
    }
    const QString note =
        gViewTop10Only ? noteInTheView(score) : noteAtTheEnd(gTop10, m_newRow, score);
    m_ui->lblHint->setText(note);
    m_ui->lblHint->setVisible(!note.isEmpty());
    showRows();
    showNaming(m_newRow != 0);
    fitToTexts();
}

// Its layout alone does not keep enough height free for labels that wrap their texts.
void dlgGameOver::fitToTexts()
{
    constexpr int TitleBar = 38; // at most, with the frame
    const int room = screen()->availableSize().height() - TitleBar;
    const int needed = layout()->totalMinimumHeightForWidth(width());
    resize(width(), std::max(height(), std::min(needed, room)));
}

// Runs beside everything else.
void dlgGameOver::showPrize()
{
    const auto show = [this](const QVariant &shown) {
        m_ui->banner->setPrize(shown.toDouble());
        rowWidget(m_newRow).setNew(shown.toDouble());
    };
    const auto duration = std::min(2 * Motion::usualTime(*this), Motion::LongestTime);
    show(duration.count() > 0 ? 0.0 : 1.0);
    if (duration.count() <= 0)
        return;
    m_celebration.setDuration(static_cast<int>(duration.count()));
    m_celebration.setStartValue(0.0);
    m_celebration.setEndValue(1.0);
    m_celebration.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_celebration, &QVariantAnimation::valueChanged, this, show);
    m_celebration.start();
}

void dlgGameOver::Form_Activate()
{
    m_ui->txtName->setFocus();
}

void dlgGameOver::cmdEnter_Click()
{
    gTop10[indexOf(m_namedRow)].PlayerName = withoutOuterBlanks(m_ui->txtName->text());
    Top10File::write(pathOf(Place::Top10), gTop10);
    m_namedRow = 0;
    showRows();
    showNaming(false);
}

void dlgGameOver::cmdReset_Click()
{
    if (MsgBox(QStringLiteral("Are you sure you want to reset the scores?"), MsgBoxButtons::YesNo,
               MsgBoxEsc::MeansNo) != MsgBoxAnswer::Yes)
        return;
    resetScores(gTop10);
    if (m_newRow != 0)
        rowWidget(m_newRow).setNew(0);
    showRows();
    Top10File::write(pathOf(Place::Top10), gTop10);
}

void dlgGameOver::cmdClose_Click()
{
    gScore = 0;
    close();
}

bool dlgGameOver::Form_QueryUnload()
{
    m_music.stop();
    if (m_newRow != 0)
        gScore = 0; // a score enters the table once
    return true;
}

void dlgGameOver::showRows()
{
    Top10Columns columns;
    for (Integer row = 1; row <= int(m_rows.size()); ++row) {
        rowWidget(row).setEntry(gTop10[indexOf(row)], row == m_namedRow ? Top10Row::Name::BeingTyped
                                                                        : Top10Row::Name::Shown);
        const Top10Columns needed = rowWidget(row).columns();
        columns.date = std::max(columns.date, needed.date);
        columns.points = std::max(columns.points, needed.points);
    }
    for (Top10Row *row : m_rows)
        row->setColumns(columns);
}

void dlgGameOver::showNaming(bool naming)
{
    m_ui->txtName->setVisible(naming);
    m_ui->cmdEnter->setVisible(naming);
    m_ui->cmdClose->setVisible(!naming);
    m_ui->cmdReset->setEnabled(!naming);
    (naming ? m_ui->cmdEnter : m_ui->cmdClose)->setDefault(true);
    if (naming)
        m_ui->txtName->setFocus();
    else
        m_ui->cmdClose->setFocus();
}
