// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/dlgGameOver.h"

#include "core/Module1.h"
#include "game/Music.h"
#include "game/Top10File.h"
#include "game/ui_dlgGameOver.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"
#include "runtime/Blanks.h"

using namespace Module1;

namespace {

constexpr int RankColumn = 0;
constexpr int RowColumn = 1;
constexpr int NameColumn = 2;
// Columns that a row's label takes.
constexpr int LabelOnly = 1;
constexpr int LabelAndName = 2;

const QString EndsGameHint =
    QStringLiteral("Close ends this game's points; Esc goes back to the game");

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
    for (int row = 1; row <= int(m_lblTop10.size()); ++row) {
        auto *rank = new QLabel(QString::number(row), m_ui->rowPanel);
        rank->setProperty("rank", row);
        rank->setAlignment(Qt::AlignCenter);
        auto *label = new QLabel(m_ui->rowPanel);
        label->setObjectName(QStringLiteral("lblTop10_%1").arg(row));
        label->setTextFormat(Qt::PlainText);
        label->setMinimumWidth(1); // a long name is cut off instead of widening the dialog
        m_lblTop10[indexOf(row)] = label;
        m_ui->rowLayout->addWidget(rank, row - 1, RankColumn);
        placeRow(row, LabelAndName);
    }
    m_ui->rowLayout->setColumnStretch(NameColumn, 1);
}

void dlgGameOver::Form_Load()
{
    m_newRow = gViewTop10Only ? Integer(0) : rowOfScore(gTop10, gScore);
    if (m_newRow != 0) {
        enterScore(gTop10, m_newRow, gScore, QDate::currentDate());
        m_scoreHasRow = true;
        placeRow(m_newRow, LabelOnly);
        m_ui->rowLayout->addWidget(m_ui->txtName, m_newRow.toInt() - 1, NameColumn);
    }
    const bool endsGame = gViewTop10Only && gScore != 0;
    m_ui->lblHint->setText(endsGame ? EndsGameHint : QString());
    m_ui->lblHint->setVisible(endsGame);
    showRows();
    showNaming(m_newRow != 0);
}

// With LabelOnly there is room for the name box beside the label.
void dlgGameOver::placeRow(Integer row, int columns)
{
    QLabel *label = m_lblTop10[indexOf(row)];
    m_ui->rowLayout->removeWidget(label);
    m_ui->rowLayout->addWidget(label, row.toInt() - 1, RowColumn, 1, columns);
}

void dlgGameOver::Form_Activate()
{
    m_ui->txtName->setFocus();
}

void dlgGameOver::cmdEnter_Click()
{
    gTop10[indexOf(m_newRow)].PlayerName = withoutOuterBlanks(m_ui->txtName->text());
    Top10File::write(pathOf(Place::Top10), gTop10);
    placeRow(m_newRow, LabelAndName);
    m_newRow = 0;
    showRows();
    showNaming(false);
}

void dlgGameOver::cmdReset_Click()
{
    if (MsgBox(QStringLiteral("Are you sure you want to reset the scores?"), MsgBoxButtons::YesNo,
               MsgBoxEsc::MeansNo) != MsgBoxAnswer::Yes)
        return;
    resetScores(gTop10);
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
    if (m_scoreHasRow)
        gScore = 0; // a score enters the table once
    return true;
}

void dlgGameOver::showRows()
{
    for (Integer row = 1; row <= int(m_lblTop10.size()); ++row) {
        const Top10Entry &entry = gTop10[indexOf(row)];
        QLabel *label = m_lblTop10[indexOf(row)];
        label->setText(row == m_newRow ? unnamedRowText(entry) : rowText(entry));
        label->setToolTip(Qt::convertFromPlainText(label->text()));
    }
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
