// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/dlgIncorrectAnswer.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "game/TypeSizes.h"
#include "game/TypedWord.h"
#include "game/ui_dlgIncorrectAnswer.h"
#include "platform/MsgBox.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

using Module1::gVocabList;

dlgIncorrectAnswer::dlgIncorrectAnswer(QWidget *parent)
    : DialogForm(parent), m_ui(std::make_unique<Ui::dlgIncorrectAnswer>())
{
    m_ui->setupUi(this);
    onClick(m_ui->cmdOK, &dlgIncorrectAnswer::cmdOK_Click);
    onClick(m_ui->cmdUp, &dlgIncorrectAnswer::cmdUp_Click);
    onClick(m_ui->cmdDown, &dlgIncorrectAnswer::cmdDown_Click);
    // For letters that are not on the keyboard.
    auto *copy = new QAction(QStringLiteral("&Copy Word"), m_ui->lblAnswerIs);
    connect(copy, &QAction::triggered, this,
            [] { runGuarded([] { QGuiApplication::clipboard()->setText(gVocabList().Word()); }); });
    m_ui->lblAnswerIs->addAction(copy);
    m_ui->lblAnswerIs->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_ui->lblAnswerIs->setToolTip(QStringLiteral("Right-click to copy the word"));
}

dlgIncorrectAnswer::~dlgIncorrectAnswer() = default;

void dlgIncorrectAnswer::Form_Load()
{
    showWord(true);
    const QString word = gVocabList().Word();
    m_ui->lblAnswerIs->setText(QStringLiteral("The correct answer is: ") + word);
    // The box must take the whole word, or the dialog could never be closed.
    m_ui->txtUserAnswer->setMaxLength(
        std::max(m_ui->txtUserAnswer->maxLength(), static_cast<int>(word.size())));
    const QString definition = gVocabList().Definition();
    showText(*m_ui->lblDefinition, definition, missedDefinitionTypeSize(definition.size()));
    m_ui->txtUserAnswer->setFocus();
}

// Enter presses the button that has the focus, else the default button, which exists only while
// the word is hidden.
void dlgIncorrectAnswer::keyPressEvent(QKeyEvent *event)
{
    if (!m_defaultButton.press(*event, focusWidget()))
        DialogForm::keyPressEvent(event);
}

void dlgIncorrectAnswer::cmdDown_Click()
{
    showWord(false);
    m_ui->txtUserAnswer->setFocus();
}

void dlgIncorrectAnswer::cmdUp_Click()
{
    showWord(true);
    m_ui->txtUserAnswer->setFocus();
}

void dlgIncorrectAnswer::cmdOK_Click()
{
    const QString word = gVocabList().Word();
    m_isTyped = isWord(m_ui->txtUserAnswer->text(), word);
    if (m_isTyped) {
        close();
        return;
    }
    MsgBox(QStringLiteral("The correct word is: '") + word + QLatin1Char('\''));
    m_ui->txtUserAnswer->setFocus();
}

void dlgIncorrectAnswer::showWord(bool shown)
{
    m_ui->lblAnswerIs->setVisible(shown);
    m_ui->cmdUp->setVisible(!shown);
    m_ui->cmdDown->setVisible(shown);
    m_defaultButton.set(shown ? nullptr : m_ui->cmdOK);
}
