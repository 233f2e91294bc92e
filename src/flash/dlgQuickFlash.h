// SPDX-License-Identifier: GPL-3.0-or-later
// The flash-card drill: a word card and a closed definition card, turned by hand or automatically.
#pragma once

#include "platform/DialogForm.h"

#include <QTimer>

#include <memory>

namespace Ui {
class dlgQuickFlash;
}

class dlgQuickFlash final : public DialogForm
{
    Q_OBJECT

public:
    explicit dlgQuickFlash(QWidget *parent = nullptr);
    ~dlgQuickFlash() override;

Q_SIGNALS:
    // The dialog was closed; the main window should be shown.
    void terminated();

protected:
    void Form_Load() override;
    void Form_Terminate() override;

private:
    enum class Run { ByHand, Automatic };
    enum class Turn { None, StartsOver };

    void cmdNext_Click();
    void cmdPrevious_Click();
    void cmdAutoFlash_Click();
    void cmdStop_Click();
    void CancelButton_Click();
    void txtDef_Click();
    void tmrWord_Timer();
    void tmrDef_Timer();

    void ShuffleCards();
    void showCard(Turn turn);
    void startWordPhase();
    void stopTimers();
    void showTimes();
    void showRun(Run run);

    std::unique_ptr<Ui::dlgQuickFlash> m_ui;
    QTimer m_tmrWord;
    QTimer m_tmrDef;
};
