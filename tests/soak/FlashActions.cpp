// SPDX-License-Identifier: GPL-3.0-or-later
// The flash cards, by hand and automatic. Time passes by sending the events of the timers.
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "flash/FlashCard.h"
#include "soak/Soak.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestDefinition = 163; // whose time fits into 16 bits

bool isEditorShown(Soak &soak)
{
    return !soak.game();
}

// Lets the running timer end.
void passTime(Soak &soak, QDialog &form)
{
    auto &word = Controls::find<QTimer>(form, "tmrWord");
    auto &definition = Controls::find<QTimer>(form, "tmrDef");
    QTimer &running = word.isActive() ? word : definition;
    if (!running.isActive())
        return;
    soak.note(running.objectName());
    if (&running == &word && Module1::gVocabList().Definition().size() > LongestDefinition)
        soak.expectRunTimeError(6);
    QMetaObject::invokeMethod(&running, "timeout", Qt::DirectConnection);
}

void pressSomething(Soak &soak, QDialog &form)
{
    constexpr const char *buttons[] = {"cmdNext", "cmdPrevious", "cmdAutoFlash", "cmdStop"};
    constexpr Qt::Key keys[] = {Qt::Key_Space, Qt::Key_Left, Qt::Key_Right, Qt::Key_Return,
                                Qt::Key_Tab};
    switch (soak.roll(4)) {
    case 0:
        return QTest::mouseClick(Controls::find<FlashCard>(form, "txtDef").viewport(),
                                 Qt::LeftButton);
    case 1:
        return Soak::press(form, soak.oneOf(keys));
    default:
        auto &button = Controls::find<QPushButton>(form, soak.oneOf(buttons));
        soak.note(button.objectName());
        if (Soak::isUsable(button))
            Controls::click(button);
    }
}

void useCards(Soak &soak, QDialog &form)
{
    for (int times = 1 + soak.roll(12); times > 0; --times) {
        Soak::waitFor(form);
        if (soak.chance(40))
            passTime(soak, form);
        else
            pressSomething(soak, form);
        if (!form.isVisible())
            return; // Tab to Close, Enter
        // With the line breaks and blanks that a text box makes of those of the word.
        const QString word = QPlainTextEdit(Module1::gVocabList().Word()).toPlainText();
        if (Controls::find<FlashCard>(form, "txtWord").toPlainText() != word)
            failTest(u"the card shows another word"_s);
    }
    if (soak.chance(50))
        Controls::click(Controls::find<QPushButton>(form, "CancelButton"));
    else if (soak.chance(50))
        Soak::press(form, Qt::Key_Escape);
    else
        form.close();
}

void openCards(Soak &soak)
{
    if (soak.model.count() == 0)
        soak.expectMsgBox(u"Your current wordlist is empty"_s);
    else
        soak.answers().useForm("dlgQuickFlash", [&soak](QDialog &form) { useCards(soak, form); });
    if (soak.chance(50))
        soak.main().click("cmdQuickFlash");
    else
        soak.main().choose("mnuQuickFlash");
}

} // namespace

std::vector<Action> flashActions()
{
    return {
        {"flash cards", 6, isEditorShown, openCards},
    };
}
