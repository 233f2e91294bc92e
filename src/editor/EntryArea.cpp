// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EntryArea.h"

#include "editor/MainLayout.h"
#include "editor/ui_frmMain.h"
#include "platform/Guarded.h"
#include "platform/Screen.h"

namespace {

constexpr int Spacing = 8;     // pixels, as all measures below
constexpr int LineHeight = 32; // of a one-line box or a button
constexpr int ButtonWidth = 116;

} // namespace

EntryArea::EntryArea(Ui::frmMain &ui) : m_ui(ui)
{
    connect(ui.txtDefinition, &QPlainTextEdit::textChanged, this,
            guarded(this, &EntryArea::txtDefinition_Change));
    connect(ui.txtSentence, &QPlainTextEdit::textChanged, this,
            guarded(this, &EntryArea::txtSentence_Change));
}

// From top to bottom: the word, the two long texts, the buttons.
void EntryArea::place(const MainLayout &layout, int height)
{
    m_ui.Frame1->setGeometry(0, pixels(layout.frameTop), pixels(layout.frameWidth), height);
    const int frameDefWidth = pixels(layout.frameDefWidth);
    const int labelWidth = m_ui.Label1->sizeHint().width();
    const int wordLeft = 2 * Spacing + labelWidth + Spacing;
    m_ui.Label1->setGeometry(2 * Spacing, Spacing, labelWidth, LineHeight);
    m_ui.txtWord->setGeometry(wordLeft, Spacing, Spacing + frameDefWidth - wordLeft, LineHeight);

    const int textTop = LineHeight + 2 * Spacing;
    const int buttonTop = height - LineHeight - Spacing;
    const int textHeight = buttonTop - textTop - Spacing;
    const int innerTop = 3 * Spacing;
    const auto placeText = [&](QGroupBox *frame, QWidget *box, int left) {
        frame->setGeometry(left, textTop, frameDefWidth, textHeight);
        const int boxWidth = pixels(layout.textWidth);
        box->setGeometry((frameDefWidth - boxWidth) / 2, innerTop, boxWidth,
                         textHeight - innerTop - 2 * Spacing);
    };
    placeText(m_ui.FrameDef, m_ui.txtDefinition, Spacing);
    placeText(m_ui.FrameSen, m_ui.txtSentence, pixels(layout.frameSenLeft));

    int left = Spacing;
    for (QPushButton *button : {m_ui.cmdAdd, m_ui.cmdAbort, m_ui.cmdDelete, m_ui.cmdSearch}) {
        button->setGeometry(left, buttonTop, ButtonWidth, LineHeight);
        left += ButtonWidth + Spacing;
    }
    // New Word and Add are never shown together.
    m_ui.cmdNewWord->setGeometry(m_ui.cmdAdd->geometry());
    const int playLeft = pixels(layout.playLeft);
    const int playWidth = pixels(layout.frameWidth) - playLeft;
    m_ui.cmdPlayScramble->setGeometry(playLeft, buttonTop, playWidth, LineHeight);
    m_ui.cmdQuickFlash->setGeometry(playLeft - playWidth, buttonTop, playWidth, LineHeight);
}

void EntryArea::show(EditorMode mode, EntryFocus focus)
{
    m_mode = mode;
    const EntryLook look = lookOf(mode);
    m_ui.cmdAdd->setVisible(look.showsAdd);
    m_ui.cmdAdd->setEnabled(look.add);
    m_ui.cmdAdd->setText(look.isUpdate ? QStringLiteral("&Update") : QStringLiteral("&Add"));
    m_ui.cmdNewWord->setVisible(!look.showsAdd);
    m_ui.cmdNewWord->setEnabled(look.newWord);
    m_ui.cmdAbort->setEnabled(look.abort);
    m_ui.cmdSearch->setEnabled(look.search);
    m_ui.cmdDelete->setEnabled(look.deletion);
    switch (look.boxes) {
    case EntryLook::Boxes::None:
        DisableEntryBoxes();
        break;
    case EntryLook::Boxes::Word:
        m_ui.txtWord->setEnabled(true);
        break;
    case EntryLook::Boxes::All:
        EnableEntryBoxes();
        break;
    }
    switch (look.defaultButton) {
    case EntryLook::Button::NewWord:
        m_defaultButton.set(m_ui.cmdNewWord);
        break;
    case EntryLook::Button::Add:
        m_defaultButton.set(m_ui.cmdAdd);
        break;
    case EntryLook::Button::Search:
        m_defaultButton.set(m_ui.cmdSearch);
        break;
    }
    giveFocus(focus);
}

void EntryArea::giveFocus(EntryFocus control)
{
    switch (control) {
    case EntryFocus::Grid:
        m_ui.MSFlexGrid1->setFocus();
        break;
    case EntryFocus::NewWord:
        m_ui.cmdNewWord->setFocus();
        break;
    case EntryFocus::Word:
        m_ui.txtWord->setFocus();
        break;
    case EntryFocus::Definition:
        m_ui.txtDefinition->setFocus();
        break;
    case EntryFocus::Sentence:
        m_ui.txtSentence->setFocus();
        break;
    }
}

bool EntryArea::press(const QKeyEvent &event, QWidget *focus) const
{
    return m_defaultButton.press(event, focus);
}

void EntryArea::showEntry(const VocabRecord &entry)
{
    m_ui.txtWord->setText(entry.Word); // cannot be undone, as clear() can
    m_ui.txtDefinition->setText(entry.Definition);
    m_ui.txtSentence->setText(entry.Sentence);
}

VocabRecord EntryArea::entry() const
{
    return {word(), m_ui.txtDefinition->text(), m_ui.txtSentence->text()};
}

QString EntryArea::word() const
{
    return m_ui.txtWord->text();
}

void EntryArea::selectWord()
{
    m_ui.txtWord->selectAll();
}

void EntryArea::ClearEntryBoxes()
{
    showEntry({});
}

void EntryArea::EnableEntryBoxes()
{
    m_ui.txtWord->setEnabled(true);
    m_ui.txtDefinition->setEnabled(true);
    m_ui.txtSentence->setEnabled(true);
}

void EntryArea::DisableEntryBoxes()
{
    m_ui.txtWord->setEnabled(false);
    m_ui.txtDefinition->setEnabled(false);
    m_ui.txtSentence->setEnabled(false);
}

void EntryArea::txtDefinition_Change()
{
    m_ui.FrameDef->setTitle(
        QStringLiteral("Definition: %1").arg(m_ui.txtDefinition->text().size()));
}

void EntryArea::txtSentence_Change()
{
    m_ui.FrameSen->setTitle(QStringLiteral("Sentence: %1").arg(m_ui.txtSentence->text().size()));
}
