// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: the flash cards with a list.
#pragma once

#include "core/FreshState.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "flash/FlashCard.h"
#include "flash/dlgQuickFlash.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

class FlashForm final
{
    FreshState m_state;

public:
    DialogAnswers answers;

    // A list of "word 1" with "definition 1", and so on.
    explicit FlashForm(int entries = 5, Caller caller = Caller::current()) : answers(caller)
    {
        for (int i = 1; i <= entries; ++i)
            Module1::gVocabList().AddVocab(u"word %1"_s.arg(i), u"definition %1"_s.arg(i), {});
        open(caller);
    }
    // A list of a single word with this definition.
    explicit FlashForm(const QString &definition, Caller caller = Caller::current())
        : answers(caller)
    {
        Module1::gVocabList().AddVocab(u"word 1"_s, definition, {});
        open(caller);
    }

    [[nodiscard]] dlgQuickFlash &dialog() { return *m_dialog; }
    template <class Control>
    [[nodiscard]] Control &control(const char *name, Caller caller = Caller::current())
    {
        return Controls::find<Control>(*m_dialog, name, caller);
    }
    [[nodiscard]] QPushButton &button(const char *name, Caller caller = Caller::current())
    {
        return control<QPushButton>(name, caller);
    }
    [[nodiscard]] QTimer &timer(const char *name, Caller caller = Caller::current())
    {
        return control<QTimer>(name, caller);
    }
    [[nodiscard]] FlashCard &card(const char *name, Caller caller = Caller::current())
    {
        return control<FlashCard>(name, caller);
    }
    [[nodiscard]] QString word() { return card("txtWord").toPlainText(); }
    [[nodiscard]] QString definition() { return card("txtDef").toPlainText(); }

    void click(const char *name, Caller caller = Caller::current())
    {
        Controls::click(button(name, caller), caller);
    }
    void clickCard() { QTest::mouseClick(card("txtDef").viewport(), Qt::LeftButton); }

    // Lets a running timer fire now.
    void passTime(const char *name, Caller caller = Caller::current())
    {
        QTimer &running = timer(name, caller);
        if (!running.isActive())
            return failTest(QLatin1String(name) + u" does not run"_s, caller);
        const int interval = running.interval();
        QSignalSpy fired(&running, &QTimer::timeout);
        running.setInterval(1);
        if (!fired.wait())
            failTest(QLatin1String(name) + u" does not fire"_s, caller);
        running.setInterval(interval);
    }

    // The word and the definition of a card of the deck.
    [[nodiscard]] static QString wordOfCard(int card)
    {
        return u"word %1"_s.arg(Module1::gWordOrder(card).toInt());
    }
    [[nodiscard]] static QString definitionOfCard(int card)
    {
        return u"definition %1"_s.arg(Module1::gWordOrder(card).toInt());
    }

    // The names of the visible and enabled buttons and of the running timers.
    [[nodiscard]] QStringList look()
    {
        QStringList look;
        for (const char *name :
             {"cmdNext", "cmdPrevious", "cmdAutoFlash", "cmdStop", "CancelButton"})
            if (button(name).isVisible() && button(name).isEnabled())
                look += QLatin1String(name);
        for (const char *name : {"tmrWord", "tmrDef"})
            if (timer(name).isActive())
                look += QLatin1String(name);
        return look;
    }
    [[nodiscard]] static QStringList byHand()
    {
        return {u"cmdNext"_s, u"cmdPrevious"_s, u"cmdAutoFlash"_s, u"CancelButton"_s};
    }
    // The look of an automatic run. timer: the one that runs, or empty.
    [[nodiscard]] static QStringList automatic(const QString &timer)
    {
        QStringList look{u"cmdStop"_s, u"CancelButton"_s};
        if (!timer.isEmpty())
            look += timer;
        return look;
    }

private:
    void open(Caller caller)
    {
        m_dialog = std::make_unique<dlgQuickFlash>();
        m_dialog->show();
        Controls::waitUntilActive(*m_dialog, caller);
    }

    std::unique_ptr<dlgQuickFlash> m_dialog;
};
