// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the right word and its definition after a miss. Closes only after the word was typed.
#pragma once

#include "platform/DefaultButton.h"
#include "platform/DialogForm.h"

#include <memory>

namespace Ui {
class dlgIncorrectAnswer;
}

class dlgIncorrectAnswer final : public DialogForm
{
    Q_OBJECT

public:
    // The dialog opens below this control of its parent window, where the screen has room.
    explicit dlgIncorrectAnswer(QWidget &above);
    ~dlgIncorrectAnswer() override;

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override { return m_isTyped; }
    void keyPressEvent(QKeyEvent *event) override;

private:
    void cmdOK_Click();
    void cmdUp_Click();
    void cmdDown_Click();
    void fitToTexts();
    [[nodiscard]] int heightWithoutTexts();
    void placeBelow(const QWidget &control);
    void showWord(bool shown);
    void showHint(const QString &hint);

    std::unique_ptr<Ui::dlgIncorrectAnswer> m_ui;
    const QWidget &m_above;
    DefaultButton m_defaultButton;
    bool m_wordIsShown = true;
    bool m_isTyped = false; // the right word has been typed
};
