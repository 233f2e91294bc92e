// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EntryArea.h"

#include "editor/MainLayout.h"
#include "editor/ui_frmMain.h"
#include "platform/Guarded.h"
#include "platform/Screen.h"

#include <algorithm>
#include <array>

namespace {

constexpr int Spacing = 8; // pixels, as all measures below

} // namespace

EntryArea::EntryArea(Ui::frmMain &ui) : m_ui(ui)
{
    connect(ui.txtDefinition, &QPlainTextEdit::textChanged, this,
            guarded(this, &EntryArea::txtDefinition_Change));
    connect(ui.txtSentence, &QPlainTextEdit::textChanged, this,
            guarded(this, &EntryArea::txtSentence_Change));
}

// Of a box of one line or a button.
int EntryArea::lineHeight() const
{
    constexpr int least = 32;
    return std::max({least, m_ui.txtWord->sizeHint().height(), m_ui.cmdAdd->sizeHint().height()});
}

int EntryArea::titleHeight() const
{
    return std::max(3 * Spacing, m_ui.FrameDef->fontMetrics().height() + Spacing);
}

int EntryArea::leastHeight() const
{
    constexpr int lines = 4;
    const int border = 2 * Spacing;
    const int box = lines * m_ui.txtDefinition->fontMetrics().lineSpacing() + border;
    return 2 * (lineHeight() + 2 * Spacing) + titleHeight() + box + 2 * Spacing;
}

// From top to bottom: the word, the two long texts, the buttons.
void EntryArea::place(const MainLayout &layout, int height)
{
    const int line = lineHeight();
    m_ui.Frame1->setGeometry(0, pixels(layout.frameTop), pixels(layout.frameWidth), height);
    const int frameDefWidth = pixels(layout.frameDefWidth);
    const int labelWidth = m_ui.Label1->sizeHint().width();
    const int wordLeft = 2 * Spacing + labelWidth + Spacing;
    m_ui.Label1->setGeometry(2 * Spacing, Spacing, labelWidth, line);
    m_ui.txtWord->setGeometry(wordLeft, Spacing, Spacing + frameDefWidth - wordLeft, line);

    const int quietLeft = pixels(layout.frameSenLeft) + 2 * Spacing;
    m_ui.lblQuiet->setGeometry(quietLeft, Spacing, pixels(layout.frameWidth) - quietLeft - Spacing,
                               line);

    const int textTop = line + 2 * Spacing;
    const int buttonTop = height - line - Spacing;
    const int textHeight = buttonTop - textTop - Spacing;
    const int innerTop = titleHeight();
    const auto placeText = [&](QGroupBox *frame, QWidget *box, int left) {
        frame->setGeometry(left, textTop, frameDefWidth, textHeight);
        const int boxWidth = pixels(layout.textWidth);
        box->setGeometry((frameDefWidth - boxWidth) / 2, innerTop, boxWidth,
                         textHeight - innerTop - 2 * Spacing);
    };
    placeText(m_ui.FrameDef, m_ui.txtDefinition, Spacing);
    placeText(m_ui.FrameSen, m_ui.txtSentence, pixels(layout.frameSenLeft));
    placeButtons(layout, buttonTop);
}

// Play and Quick Flash at the right end, the others of one width in what is left.
void EntryArea::placeButtons(const MainLayout &layout, int top)
{
    const int line = lineHeight();
    const int playLeft = pixels(layout.playLeft);
    const int playWidth = pixels(layout.frameWidth) - playLeft;
    const int flashWidth = std::max(playWidth, m_ui.cmdQuickFlash->sizeHint().width());
    m_ui.cmdPlayScramble->setGeometry(playLeft, top, playWidth, line);
    m_ui.cmdQuickFlash->setGeometry(playLeft - flashWidth, top, flashWidth, line);

    const std::array entryButtons{m_ui.cmdAdd, m_ui.cmdAbort, m_ui.cmdDelete, m_ui.cmdSearch};
    const int room = playLeft - flashWidth - Spacing;
    constexpr int usualWidth = 116;
    int width = std::max(usualWidth, m_ui.cmdNewWord->sizeHint().width() + 2 * Spacing);
    width = std::min(width, room / int(entryButtons.size()) - Spacing);
    int left = Spacing;
    for (QPushButton *button : entryButtons) {
        button->setGeometry(left, top, width, line);
        left += width + Spacing;
    }
    // New Word and Add are never shown together.
    m_ui.cmdNewWord->setGeometry(m_ui.cmdAdd->geometry());
}

void EntryArea::show(EditorMode mode, EntryFocus focus)
{
    m_mode = mode;
    const EntryLook &look = lookOf(mode);
    const bool showsAdd = look.shown != EntryLook::Shown::NewWord;
    m_ui.cmdAdd->setVisible(showsAdd);
    m_ui.cmdAdd->setEnabled(look.isEnabled(EntryLook::Add));
    const bool updates = look.shown == EntryLook::Shown::Update;
    m_ui.cmdAdd->setText(updates ? QStringLiteral("&Update") : QStringLiteral("&Add"));
    m_ui.cmdAdd->setToolTip(updates ? QStringLiteral("Store the changed entry (Alt+U, Enter)")
                                    : QStringLiteral("Add the word to the list (Alt+A, Enter)"));
    m_ui.cmdNewWord->setVisible(!showsAdd);
    m_ui.cmdNewWord->setEnabled(look.isEnabled(EntryLook::NewWord));
    m_ui.cmdAbort->setEnabled(look.isEnabled(EntryLook::Abort));
    m_ui.cmdSearch->setEnabled(look.isEnabled(EntryLook::Search));
    m_ui.cmdDelete->setEnabled(look.isEnabled(EntryLook::Delete));
    m_ui.txtWord->setEnabled(look.enabledBoxes != EntryLook::Boxes::None);
    m_ui.txtDefinition->setEnabled(look.enabledBoxes == EntryLook::Boxes::All);
    m_ui.txtSentence->setEnabled(look.enabledBoxes == EntryLook::Boxes::All);
    m_defaultButton.set(look.defaultButton == EntryLook::Add      ? m_ui.cmdAdd
                        : look.defaultButton == EntryLook::Search ? m_ui.cmdSearch
                                                                  : m_ui.cmdNewWord);
    giveFocus(focus);
}

void EntryArea::giveFocus(EntryFocus control)
{
    const std::array<QWidget *, 5> controls{m_ui.MSFlexGrid1, m_ui.cmdNewWord, m_ui.txtWord,
                                            m_ui.txtDefinition, m_ui.txtSentence};
    controls.at(static_cast<std::size_t>(control))->setFocus();
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

void EntryArea::txtDefinition_Change()
{
    m_ui.FrameDef->setTitle(
        QStringLiteral("Definition: %1").arg(m_ui.txtDefinition->text().size()));
}

void EntryArea::txtSentence_Change()
{
    m_ui.FrameSen->setTitle(QStringLiteral("Sentence: %1").arg(m_ui.txtSentence->text().size()));
}
