// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the Top 10 table. Enters the game's score, if it is high enough, and takes its name.
#pragma once

#include "game/Top10Table.h"
#include "platform/DialogForm.h"

#include <array>
#include <memory>

class Music;
class QLabel;

namespace Ui {
class dlgGameOver;
}

class dlgGameOver final : public DialogForm
{
    Q_OBJECT

public:
    // music: stopped when the dialog closes.
    dlgGameOver(Music &music, QWidget *parent);
    ~dlgGameOver() override;

    void setTitle(const QString &title);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;

private:
    void cmdEnter_Click();
    void cmdReset_Click();
    void cmdClose_Click();

    void makeRows();
    void placeRow(Integer row, int columns);
    void showRows();
    void showNaming(bool naming);

    std::unique_ptr<Ui::dlgGameOver> m_ui;
    std::array<QLabel *, std::tuple_size_v<Top10Table>> m_lblTop10{};
    Integer m_newRow; // the row whose name is being typed; 0 = none
    bool m_scoreHasRow = false;
    Music &m_music;
};
