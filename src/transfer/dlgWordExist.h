// SPDX-License-Identifier: GPL-3.0-or-later
// Asks about an imported word that the open list already has, and shows the existing entry, which
// can be edited there. Where the two differ they are marked. The answers are the flags gAddThis,
// gAddAll, gSkipAll and gStopImport.
#pragma once

#include "platform/DialogForm.h"

#include <memory>

namespace Ui {
class dlgWordExist;
}

class dlgWordExist final : public DialogForm
{
    Q_OBJECT

public:
    explicit dlgWordExist(QWidget *parent = nullptr);
    ~dlgWordExist() override;

    // Shows "Conflict 2 of 5" above the question.
    void showConflict(int number, int total);

Q_SIGNALS:
    // The main window should be brought up to date.
    void refresh();
    // The existing entry is gone.
    void deleted();

protected:
    void Form_Load() override;

private:
    void cmdYes_Click();
    void cmdNo_Click();
    void cmdYesToAll_Click();
    void cmdNoToAll_Click();
    void cmdAbort_Click();
    void cmdFindNext_Click();
    void cmdAllowModify_Click();
    void cmdUpdate_Click();
    void cmdDelete_Click();
    void existingEntry_Change();

    void showExisting();
    void lockExisting(bool locked);
    void enableEditing(bool entryShown);
    void showDifferences();
    void unload();

    std::unique_ptr<Ui::dlgWordExist> m_ui;
    bool m_isEntryShown = false; // not after it was deleted
};
