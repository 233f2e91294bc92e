// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the Top 10 table. Enters the game's score, if it is high enough, and takes its name.
#pragma once

#include "game/Top10Table.h"
#include "platform/DialogForm.h"

#include <QVariantAnimation>

#include <array>
#include <memory>

class Music;
class Top10Row;

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
    [[nodiscard]] Top10Row &rowWidget(Integer row) const;
    void showRows();
    void showPrize();
    void fitToTexts();
    void showNaming(bool naming);

    std::unique_ptr<Ui::dlgGameOver> m_ui;
    std::array<Top10Row *, std::tuple_size_v<Top10Table>> m_rows{};
    Integer m_newRow;   // the row of the new score; 0 = none
    Integer m_namedRow; // the row whose name is being typed; 0 = none
    QVariantAnimation m_celebration{this};
    Music &m_music;
};
