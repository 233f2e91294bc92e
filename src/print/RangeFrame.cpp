// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/RangeFrame.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/LostFocus.h"
#include "print/PrintNumbers.h"
#include "print/ui_frmPrint.h"

#include <initializer_list>

using namespace Module1;

RangeFrame::RangeFrame(const Ui::frmPrint &ui) : m_ui(ui)
{
    connect(ui.optPrintAllWords, &QAbstractButton::clicked, this,
            guarded(this, &RangeFrame::optPrintAllWords_Click));
    connect(ui.optSubset, &QAbstractButton::clicked, this,
            guarded(this, &RangeFrame::optSubset_Click));
    new LostFocus(ui.txtFromWord, [this] { txtFromWord_LostFocus(); });
    new LostFocus(ui.txtToWord, [this] { txtToWord_LostFocus(); });
}

void RangeFrame::show()
{
    const bool isSet = FromWord != 0 && ToWord != 0;
    enableBoxes(isSet);
    if (!isSet) {
        chooseWholeList();
        return;
    }
    showPlaceholders();
    m_ui.txtFromWord->setText(FromWord.toText());
    m_ui.txtToWord->setText(ToWord.toText());
}

void RangeFrame::takeTypedText(const QWidget *focus)
{
    if (focus == m_ui.txtFromWord)
        txtFromWord_LostFocus();
    if (focus == m_ui.txtToWord)
        txtToWord_LostFocus();
}

void RangeFrame::optPrintAllWords_Click()
{
    chooseWholeList();
    enableBoxes(false);
    Q_EMIT changed();
}

void RangeFrame::optSubset_Click()
{
    enableBoxes(true);
    const auto toFrom = [this] { m_ui.txtFromWord->setFocus(Qt::TabFocusReason); };
    // An arrow key clicks the option before it moves the focus to it.
    if (m_ui.optSubset->hasFocus())
        toFrom();
    else
        QMetaObject::invokeMethod(m_ui.txtFromWord, toFrom, Qt::QueuedConnection);
}

void RangeFrame::txtFromWord_LostFocus()
{
    takePosition(*m_ui.txtFromWord, FromWord);
}

void RangeFrame::txtToWord_LostFocus()
{
    takePosition(*m_ui.txtToWord, ToWord);
}

void RangeFrame::takePosition(QLineEdit &box, Integer &setting)
{
    if (box.text().isEmpty())
        return;
    if (const auto typed = positionFromText(box.text()))
        setting = positionInList(*typed, gVocabList().NumWords());
    showPlaceholders();
    box.setText(setting.toText());
    Q_EMIT changed();
}

void RangeFrame::chooseWholeList()
{
    FromWord = 1;
    ToWord = gVocabList().NumWords();
    showPlaceholders();
}

// An empty box shows what is printed.
void RangeFrame::showPlaceholders()
{
    m_ui.txtFromWord->setPlaceholderText(FromWord.toText());
    m_ui.txtToWord->setPlaceholderText(ToWord.toText());
}

void RangeFrame::enableBoxes(bool enabled)
{
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui.txtFromWord, m_ui.txtToWord,
                                                             m_ui.lblFrom, m_ui.lblTo})
        control->setEnabled(enabled);
}
