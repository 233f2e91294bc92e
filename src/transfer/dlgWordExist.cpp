// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/dlgWordExist.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/MsgBox.h"
#include "platform/Screen.h"
#include "runtime/Blanks.h"
#include "transfer/TextDifference.h"
#include "transfer/ui_dlgWordExist.h"

#include <QStyle>

#include <utility>

using namespace Module1;

namespace {

// From its start, also where it is longer than the box.
void showWord(OneLineBox &box, const QString &word)
{
    box.setText(word);
    box.setCursorPosition(0);
}

} // namespace

dlgWordExist::dlgWordExist(QWidget *parent)
    : DialogForm(parent), m_ui(std::make_unique<Ui::dlgWordExist>())
{
    m_ui->setupUi(this);
    m_ui->lblConflict->hide();
    m_ui->lblWordExist->ensurePolished();
    constexpr int margins = 8;
    m_ui->questionArea->setFixedHeight(2 * m_ui->lblWordExist->fontMetrics().height() + margins);
    m_ui->txtCurWord->showLostCharacters(true);
    openWithSize(*this, size().expandedTo(sizeHint()));
    openAsLastClosed();
    onClick(m_ui->cmdYes, &dlgWordExist::cmdYes_Click);
    onClick(m_ui->cmdNo, &dlgWordExist::cmdNo_Click);
    onClick(m_ui->cmdYesToAll, &dlgWordExist::cmdYesToAll_Click);
    onClick(m_ui->cmdNoToAll, &dlgWordExist::cmdNoToAll_Click);
    onClick(m_ui->cmdAbort, &dlgWordExist::cmdAbort_Click);
    onClick(m_ui->cmdFindNext, &dlgWordExist::cmdFindNext_Click);
    onClick(m_ui->cmdAllowModify, &dlgWordExist::cmdAllowModify_Click);
    onClick(m_ui->cmdUpdate, &dlgWordExist::cmdUpdate_Click);
    onClick(m_ui->cmdDelete, &dlgWordExist::cmdDelete_Click);
    connect(m_ui->txtCurWord, &QLineEdit::textChanged, this,
            guarded(this, &dlgWordExist::existingEntry_Change));
    for (const EntryTextBox *box : {m_ui->txtCurDef, m_ui->txtCurSen})
        connect(box, &QPlainTextEdit::textChanged, this,
                guarded(this, &dlgWordExist::existingEntry_Change));
}

dlgWordExist::~dlgWordExist() = default;

void dlgWordExist::showConflict(int number, int total)
{
    m_ui->lblConflict->setText(QStringLiteral("Conflict %1 of %2").arg(number).arg(total));
    m_ui->lblConflict->show();
}

void dlgWordExist::Form_Load()
{
    const cVocabList &list = gVocabList();
    m_ui->lblWordExist->setText(QLatin1Char('\'') + list.Word() +
                                QStringLiteral("' already exist. Add anyway?"));
    m_ui->frmCurWord->setTitle(m_ui->frmCurWord->title() + list.CurrentWord().toText());
    showExisting();
    lockExisting(true);
    enableEditing(true);
    showWord(*m_ui->txtImportWord, gImportWord);
    m_ui->txtImportDef->setText(gImportDef);
    m_ui->txtImportSen->setText(gImportSen);
    showDifferences();
    gAddThis = gAddAll = false;
    m_ui->cmdYes->setFocus();
}

void dlgWordExist::cmdYes_Click()
{
    gAddThis = true;
    gStopImport = false;
    unload();
}

void dlgWordExist::cmdNo_Click()
{
    gAddThis = false;
    gStopImport = false;
    close();
}

void dlgWordExist::cmdYesToAll_Click()
{
    gAddAll = true;
    gStopImport = false;
    unload();
}

void dlgWordExist::cmdNoToAll_Click()
{
    gAddThis = gAddAll = false;
    gSkipAll = true;
    gStopImport = false;
    unload();
}

void dlgWordExist::cmdAbort_Click()
{
    gStopImport = true;
    unload();
}

void dlgWordExist::cmdFindNext_Click()
{
    cVocabList &list = gVocabList();
    if (!list.Exist(gImportWord, list.CurrentWord() + 1)) {
        MsgBox(QStringLiteral("Search ended. No more words found."));
        return;
    }
    m_ui->frmCurWord->setTitle(QStringLiteral("Current word: ") + list.CurrentWord().toText());
    showExisting();
    enableEditing(true);
}

void dlgWordExist::cmdAllowModify_Click()
{
    lockExisting(false);
    m_ui->txtCurWord->setFocus(); // else Delete would get it from the disabled button
    enableEditing(true);
}

void dlgWordExist::cmdUpdate_Click()
{
    if (MsgBox(QStringLiteral("Are you sure you want to change the content of this word?"),
               MsgBoxButtons::OkCancel) == MsgBoxAnswer::Cancel)
        return;
    gVocabList().Edit(withoutOuterBlanks(m_ui->txtCurWord->text()),
                      withoutOuterBlanks(m_ui->txtCurDef->text()),
                      withoutOuterBlanks(m_ui->txtCurSen->text()));
    gChanged = true;
}

void dlgWordExist::cmdDelete_Click()
{
    if (MsgBox(QStringLiteral("Are you sure you want to delete '") + gImportWord +
                   QStringLiteral("' ?"),
               MsgBoxButtons::YesNo, MsgBoxEsc::MeansNo) == MsgBoxAnswer::No)
        return;
    gVocabList().DeleteVocab();
    Q_EMIT deleted();
    m_ui->txtCurWord->clear();
    m_ui->txtCurDef->setText({});
    m_ui->txtCurSen->setText({});
    // The current entry is now another one, which is not shown here.
    enableEditing(false);
}

void dlgWordExist::existingEntry_Change()
{
    const bool isEdited = m_isEntryShown && !m_ui->txtCurWord->isReadOnly();
    m_ui->lblQuiet->setLine(isEdited ? lostCharactersText(m_ui->txtCurWord->text() +
                                                          m_ui->txtCurDef->toPlainText() +
                                                          m_ui->txtCurSen->toPlainText())
                                     : QString());
    showDifferences();
}

void dlgWordExist::showExisting()
{
    const cVocabList &list = gVocabList();
    showWord(*m_ui->txtCurWord, list.Word());
    m_ui->txtCurDef->setText(list.Definition());
    m_ui->txtCurSen->setText(list.Sentence());
}

void dlgWordExist::lockExisting(bool locked)
{
    m_ui->txtCurWord->setReadOnly(locked);
    m_ui->txtCurDef->setReadOnly(locked);
    m_ui->txtCurSen->setReadOnly(locked);
    for (QWidget *box :
         {static_cast<QWidget *>(m_ui->txtCurWord), static_cast<QWidget *>(m_ui->txtCurDef),
          static_cast<QWidget *>(m_ui->txtCurSen)})
        box->style()->polish(box); // a locked box looks locked
}

void dlgWordExist::showDifferences()
{
    const auto differences = [this](const QString &incoming, const QString &existing) {
        return m_isEntryShown ? differenceOf(incoming, existing) : TextDifference();
    };
    const auto words = differences(m_ui->txtImportWord->text(), m_ui->txtCurWord->text());
    m_ui->txtImportWord->showDifferences(words.ofOne);
    m_ui->txtCurWord->showDifferences(words.ofOther);
    for (const auto &[incoming, existing] : {std::pair(m_ui->txtImportDef, m_ui->txtCurDef),
                                             std::pair(m_ui->txtImportSen, m_ui->txtCurSen)}) {
        const auto texts = differences(incoming->toPlainText(), existing->toPlainText());
        incoming->showDifferences(texts.ofOne);
        existing->showDifferences(texts.ofOther);
    }
}

// An entry that is shown can be deleted; it can be updated after it was unlocked.
void dlgWordExist::enableEditing(bool entryShown)
{
    m_isEntryShown = entryShown;
    existingEntry_Change();
    const bool locked = m_ui->txtCurWord->isReadOnly();
    m_ui->cmdAllowModify->setEnabled(entryShown && locked);
    m_ui->cmdUpdate->setEnabled(entryShown && !locked);
    m_ui->cmdDelete->setEnabled(entryShown);
    // Enter in a box that is being edited must not answer the question.
    const bool updates = m_ui->cmdUpdate->isEnabled();
    (updates ? m_ui->cmdUpdate : m_ui->cmdYes)->setDefault(true);
    const QString update = QStringLiteral("Store what you typed into the boxes of this entry");
    m_ui->cmdUpdate->setToolTip(updates ? update + QStringLiteral(" (Enter)") : update);
    m_ui->cmdYes->setToolTip(updates ? QStringLiteral("Add this word, too (Alt+Y)")
                                     : QStringLiteral("Add this word, too (Alt+Y, Enter)"));
}

void dlgWordExist::unload()
{
    close();
    Q_EMIT refresh();
}
