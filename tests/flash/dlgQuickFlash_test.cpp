// SPDX-License-Identifier: GPL-3.0-or-later
// The deck, and stepping through it by hand.
#include "flash/dlgQuickFlash.h"

#include "flash/FlashForm.h"
#include "support/FormTest.h"

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>

#include <set>

using namespace Module1;
using namespace Qt::StringLiterals;

class dlgQuickFlash_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(5); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void theCaptionsAreTheProgramsOwn()
    {
        QCOMPARE(m_form->dialog().windowTitle(), u"Dialog Caption"_s);
        QCOMPARE(m_form->control<QGroupBox>("Frame1").title(), u"Word card"_s);
        QCOMPARE(m_form->control<QGroupBox>("Frame2").title(), u"Definition card"_s);
        QCOMPARE(m_form->button("cmdNext").text(), u"&Next"_s);
        QCOMPARE(m_form->button("cmdPrevious").text(), u"&Previous"_s);
        QCOMPARE(m_form->button("cmdAutoFlash").text(), u"&Auto Flash"_s);
        QCOMPARE(m_form->button("cmdStop").text(), u"&Stop"_s);
        QCOMPARE(m_form->button("CancelButton").text(), u"&Cancel"_s);
    }

    void theFirstCardIsOnShowAndClosed()
    {
        QCOMPARE(gOrderSize, Integer(5));
        QCOMPARE(gOrderIndex, Integer(1));
        QCOMPARE(gVocabList().CurrentWord(), gWordOrder(1));
        QCOMPARE(m_form->word(), FlashForm::wordOfCard(1));
        QCOMPARE(m_form->definition(), u"Click on card\n"_s);
        QVERIFY(m_form->card("txtDef").isBack());
        QVERIFY(!m_form->card("txtWord").isBack());
        QVERIFY(m_form->button("cmdNext").hasFocus());
    }

    void theLineBreakOfTheFirstPromptIsNotSeen()
    {
        start(1);
        const QImage first = m_form->card("txtDef").grab().toImage();
        m_form->clickCard();
        QVERIFY(m_form->card("txtDef").grab().toImage() != first);
        m_form->click("cmdNext");
        QVERIFY(m_form->card("txtDef").grab().toImage() == first);
    }

    void theTimersDoNotRunAtFirst()
    {
        QCOMPARE(m_form->look(), FlashForm::byHand());
        QCOMPARE(m_form->timer("tmrWord").interval(), 3000);
        QCOMPARE(m_form->timer("tmrDef").interval(), 5000);
        QCOMPARE(m_form->timer("tmrWord").timerType(), Qt::PreciseTimer);
        QCOMPARE(m_form->timer("tmrDef").timerType(), Qt::PreciseTimer);
    }

    void theDeckHoldsDifferentWords_data()
    {
        QTest::addColumn<int>("words");
        QTest::addColumn<int>("cards");
        QTest::newRow("one word") << 1 << 1;
        QTest::newRow("two words") << 2 << 2;
        QTest::newRow("999 words") << 999 << 999;
        QTest::newRow("1000 words") << 1000 << 1000;
        QTest::newRow("1001 words") << 1001 << 1000;
        QTest::newRow("32000 words") << 32000 << 1000;
    }

    void theDeckHoldsDifferentWords()
    {
        QFETCH(int, words);
        QFETCH(int, cards);
        start(words);
        QCOMPARE(gOrderSize, Integer(cards));
        QCOMPARE(gWordOrder.size(), cards);
        std::set<int> positions;
        for (int i = 1; i <= cards; ++i)
            positions.insert(gWordOrder(i).toInt());
        QCOMPARE(int(positions.size()), cards);
        QVERIFY(*positions.begin() >= 1 && *positions.rbegin() <= words);
    }

    void nextShowsTheCardsInTurnAndBeginsAgain()
    {
        for (const int card : {2, 3, 4, 5, 1, 2}) {
            m_form->clickCard();
            m_form->click("cmdNext");
            QCOMPARE(gOrderIndex, Integer(card));
            QCOMPARE(gVocabList().CurrentWord(), gWordOrder(card));
            QCOMPARE(m_form->word(), FlashForm::wordOfCard(card));
            QCOMPARE(m_form->definition(), u"Click on card"_s);
            QVERIFY(m_form->card("txtDef").isBack());
        }
    }

    void previousGoesBackAndFromTheFirstCardToTheLast()
    {
        for (const int card : {5, 4, 3, 2, 1, 5}) {
            m_form->clickCard();
            m_form->click("cmdPrevious");
            QCOMPARE(gOrderIndex, Integer(card));
            QCOMPARE(gVocabList().CurrentWord(), gWordOrder(card));
            QCOMPARE(m_form->word(), FlashForm::wordOfCard(card));
            QCOMPARE(m_form->definition(), u"Click on card"_s);
        }
    }

    void theDeckSaysWhichCardIsOnShow()
    {
        QCOMPARE(m_form->control<QLabel>("lblDeck").text(), u"1 of 5"_s);
        const auto &bar = m_form->control<QProgressBar>("prgDeck");
        for (const int card : {2, 3, 4, 5}) {
            m_form->click("cmdNext");
            QCOMPARE(m_form->control<QLabel>("lblDeck").text(), u"%1 of 5"_s.arg(card));
            QCOMPARE(bar.value(), card);
            QCOMPARE(bar.maximum(), 5);
        }
        m_form->click("cmdPrevious");
        QCOMPARE(m_form->control<QLabel>("lblDeck").text(), u"4 of 5"_s);
    }

    void theDeckSaysThatItStartsOver()
    {
        m_form->click("cmdPrevious");
        QCOMPARE(m_form->control<QLabel>("lblDeck").text(), u"5 of 5"_s);
        m_form->click("cmdNext");
        QCOMPARE(m_form->control<QLabel>("lblDeck").text(), u"1 of 5 - the deck starts over"_s);
        m_form->click("cmdNext");
        QCOMPARE(m_form->control<QLabel>("lblDeck").text(), u"2 of 5"_s);
    }

    void theOnlyCardIsItsOwnNextAndPrevious()
    {
        start(1);
        for (const char *button : {"cmdNext", "cmdPrevious"}) {
            m_form->clickCard();
            QCOMPARE(m_form->definition(), u"definition 1"_s);
            m_form->click(button);
            QCOMPARE(gOrderIndex, Integer(1));
            QCOMPARE(m_form->word(), u"word 1"_s);
            QCOMPARE(m_form->definition(), u"Click on card"_s);
        }
    }

    void aClickOpensTheCardAndAnotherLeavesItOpen()
    {
        for (int i = 0; i < 2; ++i) {
            m_form->clickCard();
            QCOMPARE(m_form->definition(), FlashForm::definitionOfCard(1));
            QVERIFY(!m_form->card("txtDef").isBack());
        }
        QCOMPARE(gOrderIndex, Integer(1));
    }

    void anEmptyDefinitionOpensToAnEmptyCard()
    {
        start(1);
        gVocabList().Edit(u"word 1"_s, {}, {});
        m_form->clickCard();
        QCOMPARE(m_form->definition(), QString());
        QVERIFY(!m_form->card("txtDef").isBack());
    }

    void spaceOpensTheCardWhereverTheKeyboardIs_data()
    {
        QTest::addColumn<QByteArray>("control");
        for (const char *name :
             {"cmdNext", "cmdPrevious", "txtDef", "cmdAutoFlash", "CancelButton"})
            QTest::newRow(name) << QByteArray(name);
    }

    void spaceOpensTheCardWhereverTheKeyboardIs()
    {
        QFETCH(QByteArray, control);
        m_form->control<QWidget>(control).setFocus();
        Controls::press(Qt::Key_Space);
        QCOMPARE(m_form->definition(), FlashForm::definitionOfCard(1));
        QCOMPARE(m_form->look(), FlashForm::byHand());
        QCOMPARE(gOrderIndex, Integer(1));
    }

    void arrowsStepWhereverTheKeyboardIs_data() { spaceOpensTheCardWhereverTheKeyboardIs_data(); }

    void arrowsStepWhereverTheKeyboardIs()
    {
        QFETCH(QByteArray, control);
        m_form->control<QWidget>(control).setFocus();
        Controls::press(Qt::Key_Right);
        QCOMPARE(gOrderIndex, Integer(2));
        Controls::press(Qt::Key_Right);
        QCOMPARE(gOrderIndex, Integer(3));
        QCOMPARE(m_form->word(), FlashForm::wordOfCard(3));
        Controls::press(Qt::Key_Left);
        QCOMPARE(gOrderIndex, Integer(2));
        QCOMPARE(m_form->word(), FlashForm::wordOfCard(2));
    }

    void enterGoesOnOrOpensTheCardThatHasTheKeyboard()
    {
        m_form->button("cmdNext").setFocus();
        Controls::press(Qt::Key_Return);
        QCOMPARE(gOrderIndex, Integer(2));
        m_form->card("txtDef").setFocus();
        Controls::press(Qt::Key_Return);
        QCOMPARE(gOrderIndex, Integer(2));
        QCOMPARE(m_form->definition(), FlashForm::definitionOfCard(2));
    }

    void aKeyHeldDownNeitherStepsNorOpensTheCard_data()
    {
        QTest::addColumn<QByteArray>("control");
        for (const char *name : {"cmdNext", "cmdPrevious", "txtDef", "cmdAutoFlash"})
            QTest::newRow(name) << QByteArray(name);
    }

    void aKeyHeldDownNeitherStepsNorOpensTheCard()
    {
        QFETCH(QByteArray, control);
        m_form->control<QWidget>(control).setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
            Controls::holdOn(key);
        QCOMPARE(m_form->definition(), u"Click on card\n"_s);
        QCOMPARE(m_form->look(), FlashForm::byHand());
        QCOMPARE(gOrderIndex, Integer(1));
    }

    void tabReachesEveryControlThatMayBeUsed()
    {
        m_form->button("cmdNext").setFocus();
        QStringList reached;
        for (int i = 0; i < 6; ++i) {
            reached += QApplication::focusWidget()->objectName();
            Controls::press(Qt::Key_Tab);
        }
        QCOMPARE(reached, (QStringList{u"cmdNext"_s, u"cmdAutoFlash"_s, u"CancelButton"_s,
                                       u"txtWord"_s, u"txtDef"_s, u"cmdPrevious"_s}));
        QCOMPARE(QApplication::focusWidget()->objectName(), u"cmdNext"_s);
    }

    void cancelAndEscCloseTheCards_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Cancel") << false;
        QTest::newRow("Esc") << true;
    }

    void cancelAndEscCloseTheCards()
    {
        QFETCH(bool, byKey);
        const QSignalSpy terminated(&m_form->dialog(), &dlgQuickFlash::terminated);
        if (byKey)
            Controls::press(Qt::Key_Escape);
        else
            m_form->click("CancelButton");
        QVERIFY(!m_form->dialog().isVisible());
        QCOMPARE(terminated.count(), 1);
    }

    void theDeckStaysWhenTheCardsAreGone()
    {
        m_form->click("cmdNext");
        const Integer position = gWordOrder(2);
        m_form->click("CancelButton");
        QCOMPARE(gOrderSize, Integer(5));
        QCOMPARE(gOrderIndex, Integer(2));
        QCOMPARE(gWordOrder.size(), 5);
        QCOMPARE(gWordOrder(2), position);
        QCOMPARE(gVocabList().CurrentWord(), position);
        QCOMPARE(gVocabList().NumWords(), Integer(5));
    }

private:
    void start(int entries)
    {
        m_form.reset();
        m_form = std::make_unique<FlashForm>(entries);
    }

    std::unique_ptr<FlashForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgQuickFlash_test>(argc, argv);
}

#include "dlgQuickFlash_test.moc"
