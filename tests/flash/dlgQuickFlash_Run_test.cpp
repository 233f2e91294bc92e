// SPDX-License-Identifier: GPL-3.0-or-later
// The automatic run.
#include "flash/dlgQuickFlash.h"

#include "flash/FlashForm.h"
#include "flash/TimeLine.h"
#include "platform/Appearance.h"
#include "support/FormTest.h"
#include "support/KeepsRunning.h"

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

// The line's visible part in pixels, without its round ends.
int shownLength(TimeLine &line)
{
    const QImage picture = line.grab().toImage();
    const QColor accent = accentColour(line.palette());
    int length = 0;
    for (int x = 0; x < picture.width(); ++x)
        length += picture.pixelColor(x, picture.height() / 2) == accent ? 1 : 0;
    return length;
}

} // namespace

class dlgQuickFlash_Run_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<FlashForm>(); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void theRunBeginsWithTheNextWordAndAnEmptyCard()
    {
        m_form->click("cmdAutoFlash");
        verifyWordPhase(2);
        QCOMPARE(m_form->timer("tmrWord").interval(), 3000);
        QVERIFY(!m_form->button("cmdNext").isEnabled());
        QVERIFY(!m_form->button("cmdPrevious").isEnabled());
        QVERIFY(m_form->button("cmdNext").isVisible());
        QVERIFY(!m_form->button("cmdAutoFlash").isVisible());
    }

    void stopIsInThePlaceOfAutoFlash()
    {
        const QRect place = m_form->button("cmdAutoFlash").geometry();
        m_form->click("cmdAutoFlash");
        QCOMPARE(m_form->button("cmdStop").geometry(), place);
        m_form->click("cmdStop");
        QCOMPARE(m_form->button("cmdAutoFlash").geometry(), place);
    }

    void theFocusGoesToTheOtherButton()
    {
        m_form->button("cmdAutoFlash").setFocus();
        m_form->click("cmdAutoFlash");
        QVERIFY(m_form->button("cmdStop").hasFocus());
        m_form->click("cmdStop");
        QVERIFY(m_form->button("cmdAutoFlash").hasFocus());
    }

    void enterStopsTheRun()
    {
        m_form->button("cmdNext").setFocus();
        m_form->click("cmdAutoFlash");
        QVERIFY(m_form->button("cmdStop").isDefault());
        QVERIFY(m_form->button("cmdStop").hasFocus());
        Controls::press(Qt::Key_Return);
        QCOMPARE(m_form->look(), FlashForm::byHand());
        QVERIFY(m_form->button("cmdAutoFlash").hasFocus());
    }

    void thePhasesAlternateAndTheDeckBeginsAgain()
    {
        m_form->click("cmdAutoFlash");
        for (const int card : {2, 3, 4, 5, 1, 2}) {
            verifyWordPhase(card);
            m_form->passTime("tmrWord");
            verifyDefinitionPhase(card);
            QCOMPARE(m_form->timer("tmrWord").interval(), 3000);
            m_form->passTime("tmrDef");
        }
        verifyWordPhase(3);
    }

    void longerDefinitionsAreShownLonger_data()
    {
        QTest::addColumn<int>("characters");
        QTest::addColumn<int>("milliseconds");
        QTest::newRow("none") << 0 << 3000;
        QTest::newRow("10") << 10 << 3000;
        QTest::newRow("16") << 16 << 3200;
        QTest::newRow("40") << 40 << 8000;
        QTest::newRow("60") << 60 << 10000;
        QTest::newRow("163") << 163 << 10000;
    }

    void longerDefinitionsAreShownLonger()
    {
        QFETCH(int, characters);
        QFETCH(int, milliseconds);
        start(QString(characters, u'x'));
        m_form->click("cmdAutoFlash");
        m_form->passTime("tmrWord");
        QCOMPARE(m_form->look(), FlashForm::automatic(u"tmrDef"_s));
        QCOMPARE(m_form->timer("tmrDef").interval(), milliseconds);
        QCOMPARE(m_form->definition(), QString(characters, u'x'));
    }

    void aLineBreakCountsAsTwoCharacters()
    {
        start(u"0123456789012345678\r\n9"_s);
        m_form->click("cmdAutoFlash");
        m_form->passTime("tmrWord");
        QCOMPARE(m_form->timer("tmrDef").interval(), 22 * 200);
    }

    void eachDefinitionGetsATimeOfItsOwn()
    {
        m_form->click("cmdAutoFlash");
        gVocabList().Edit(m_form->word(), QString(40, u'x'), {});
        m_form->passTime("tmrWord");
        QCOMPARE(m_form->timer("tmrDef").interval(), 8000);
        m_form->passTime("tmrDef");
        m_form->passTime("tmrWord");
        QCOMPARE(m_form->timer("tmrDef").interval(), 3000);
    }

    void stopInTheWordPhaseLeavesTheCardsAsTheyAre()
    {
        m_form->click("cmdAutoFlash");
        m_form->click("cmdStop");
        QCOMPARE(m_form->look(), FlashForm::byHand());
        QVERIFY(!m_form->button("cmdStop").isVisible());
        QCOMPARE(m_form->word(), FlashForm::wordOfCard(2));
        QCOMPARE(m_form->definition(), QString());
        m_form->clickCard();
        QCOMPARE(m_form->definition(), FlashForm::definitionOfCard(2));
    }

    void stopInTheDefinitionPhaseLeavesTheDefinitionUntilNext()
    {
        m_form->click("cmdAutoFlash");
        m_form->passTime("tmrWord");
        m_form->click("cmdStop");
        QCOMPARE(m_form->look(), FlashForm::byHand());
        QCOMPARE(m_form->word(), FlashForm::wordOfCard(2));
        QCOMPARE(m_form->definition(), FlashForm::definitionOfCard(2));
        m_form->click("cmdNext");
        QCOMPARE(m_form->word(), FlashForm::wordOfCard(3));
        QCOMPARE(m_form->definition(), u"Click on card"_s);
    }

    void aRunAfterAStopGoesOnWithTheNextWord()
    {
        m_form->click("cmdAutoFlash");
        m_form->passTime("tmrWord");
        m_form->click("cmdStop");
        m_form->click("cmdAutoFlash");
        verifyWordPhase(3);
        m_form->passTime("tmrWord");
        verifyDefinitionPhase(3);
    }

    void aClickInTheWordPhaseShowsTheDefinitionEarly()
    {
        m_form->click("cmdAutoFlash");
        QVERIFY(keepsRunning(m_form->timer("tmrWord"), [this] {
            m_form->clickCard();
            QCOMPARE(m_form->definition(), FlashForm::definitionOfCard(2));
            QCOMPARE(m_form->look(), FlashForm::automatic(u"tmrWord"_s));
        }));
        verifyDefinitionPhase(2);
    }

    void aClickInTheDefinitionPhaseChangesNothing()
    {
        m_form->click("cmdAutoFlash");
        m_form->passTime("tmrWord");
        QVERIFY(keepsRunning(m_form->timer("tmrDef"), [this] {
            m_form->clickCard();
            verifyDefinitionPhase(2);
        }));
        verifyWordPhase(3);
    }

    void spaceOpensTheCardDuringTheRunAndArrowsDoNotStep()
    {
        m_form->click("cmdAutoFlash");
        m_form->button("cmdStop").setFocus();
        Controls::press(Qt::Key_Right);
        Controls::press(Qt::Key_Left);
        Controls::press(Qt::Key_Left);
        verifyWordPhase(2);
        QVERIFY(keepsRunning(m_form->timer("tmrWord"), [this] {
            Controls::press(Qt::Key_Space);
            QCOMPARE(m_form->definition(), FlashForm::definitionOfCard(2));
            QCOMPARE(m_form->look(), FlashForm::automatic(u"tmrWord"_s));
        }));
    }

    void aDefinitionTooLongForATimeIsReportedAndStopWorks_data()
    {
        QTest::addColumn<int>("characters");
        QTest::newRow("164") << 164;
        QTest::newRow("1000") << 1000;
        QTest::newRow("32767") << 32767;
    }

    void aDefinitionTooLongForATimeIsReportedAndStopWorks()
    {
        QFETCH(int, characters);
        const QString definition(characters, u'x');
        start(definition);
        m_form->click("cmdAutoFlash");
        m_form->answers.expectMsgBox(u"Run-time error '6':\n\nOverflow"_s);
        m_form->passTime("tmrWord");
        QVERIFY(m_form->answers.allSeen());
        QCOMPARE(m_form->definition(), definition);
        QCOMPARE(m_form->look(), FlashForm::automatic({}));
        m_form->click("cmdStop");
        QCOMPARE(m_form->look(), FlashForm::byHand());
        QCOMPARE(m_form->definition(), definition);
        m_form->click("cmdNext");
        QCOMPARE(m_form->definition(), u"Click on card"_s);
        m_form->click("cmdAutoFlash");
        QCOMPARE(m_form->look(), FlashForm::automatic(u"tmrWord"_s));
    }

    void aMissingWordIsReportedOnce_data()
    {
        QTest::addColumn<QString>("phase");
        QTest::newRow("before the run") << QString();
        QTest::newRow("in the word phase") << u"tmrWord"_s;
        QTest::newRow("in the definition phase") << u"tmrDef"_s;
    }

    void aMissingWordIsReportedOnce()
    {
        QFETCH(QString, phase);
        if (!phase.isEmpty())
            m_form->click("cmdAutoFlash");
        if (phase == u"tmrDef")
            m_form->passTime("tmrWord");
        const Integer current = gVocabList().CurrentWord();
        gVocabList() = cVocabList();
        gVocabList().CurrentWord(current);
        m_form->answers.expectMsgBox(u"Run-time error '9':\n\nSubscript out of range"_s);
        if (phase.isEmpty())
            m_form->click("cmdAutoFlash");
        else
            m_form->passTime(qPrintable(phase));
        QVERIFY(m_form->answers.allSeen());
        QCOMPARE(m_form->look(), phase.isEmpty() ? FlashForm::byHand() : FlashForm::automatic({}));
    }

    void closingTheCardsEndsTheRun_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::addColumn<bool>("withDefinition");
        QTest::newRow("Cancel in the word phase") << false << false;
        QTest::newRow("Cancel in the definition phase") << false << true;
        QTest::newRow("Esc in the word phase") << true << false;
        QTest::newRow("Esc in the definition phase") << true << true;
    }

    void closingTheCardsEndsTheRun()
    {
        QFETCH(bool, byKey);
        QFETCH(bool, withDefinition);
        m_form->click("cmdAutoFlash");
        if (withDefinition)
            m_form->passTime("tmrWord");
        if (byKey)
            Controls::press(Qt::Key_Escape);
        else
            m_form->click("CancelButton");
        QVERIFY(!m_form->dialog().isVisible());
        QVERIFY(!m_form->timer("tmrWord").isActive());
        QVERIFY(!m_form->timer("tmrDef").isActive());
    }

    void aLineBelowTheCardShowsTheTimeThatIsLeft()
    {
        const QRect card = m_form->card("txtWord").geometry();
        QCOMPARE(linesShown(), QStringList());
        m_form->click("cmdAutoFlash");
        QCOMPARE(linesShown(), QStringList{u"wordTime"_s});
        QCOMPARE(m_form->card("txtWord").geometry(), card);
        m_form->passTime("tmrWord");
        QCOMPARE(linesShown(), QStringList{u"definitionTime"_s});
        m_form->passTime("tmrDef");
        QCOMPARE(linesShown(), QStringList{u"wordTime"_s});
    }

    void theLineGetsShorter()
    {
        m_form->click("cmdAutoFlash");
        auto &line = m_form->control<TimeLine>("wordTime");
        QVERIFY(line.left() <= 1);
        QTRY_VERIFY(line.left() < 0.97 && line.left() > 0);
        const double before = line.left();
        const int shown = shownLength(line);
        const double after = line.left();
        QVERIFY(shown <= line.width() * before + 1);
        QVERIFY(shown >= line.width() * after - 5);
    }

    void noLineAndNoTimerStaysAfterTheRun_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<bool>("withDefinition");
        QTest::newRow("Stop in the word phase") << QByteArray("cmdStop") << false;
        QTest::newRow("Stop in the definition phase") << QByteArray("cmdStop") << true;
        QTest::newRow("Cancel in the word phase") << QByteArray("CancelButton") << false;
        QTest::newRow("Cancel in the definition phase") << QByteArray("CancelButton") << true;
    }

    void noLineAndNoTimerStaysAfterTheRun()
    {
        QFETCH(QByteArray, button);
        QFETCH(bool, withDefinition);
        QCOMPARE(runningTimers(), 0);
        m_form->click("cmdAutoFlash");
        if (withDefinition)
            m_form->passTime("tmrWord");
        QVERIFY(runningTimers() > 0);
        m_form->click(button);
        QCOMPARE(linesShown(), QStringList());
        QCOMPARE(runningTimers(), 0);
    }

    void afterAnErrorNoLineAndNoTimerStays()
    {
        start(QString(164, u'x'));
        m_form->click("cmdAutoFlash");
        m_form->answers.expectMsgBox(u"Run-time error '6':\n\nOverflow"_s);
        m_form->passTime("tmrWord");
        QTRY_COMPARE(runningTimers(), 0);
        QCOMPARE(linesShown(), QStringList());
    }

private:
    [[nodiscard]] QStringList linesShown()
    {
        QStringList shown;
        for (const char *name : {"wordTime", "definitionTime"})
            if (m_form->control<TimeLine>(name).isVisibleTo(&m_form->dialog()))
                shown += QLatin1String(name);
        return shown;
    }

    [[nodiscard]] int runningTimers()
    {
        int running = 0;
        for (const QTimer *timer : m_form->dialog().findChildren<QTimer *>())
            running += timer->isActive() ? 1 : 0;
        return running;
    }

    void start(const QString &definition)
    {
        m_form.reset();
        m_form = std::make_unique<FlashForm>(definition);
    }

    void verifyWordPhase(int card)
    {
        QCOMPARE(gOrderIndex, Integer(card));
        QCOMPARE(m_form->word(), FlashForm::wordOfCard(card));
        QCOMPARE(m_form->definition(), QString());
        QCOMPARE(m_form->look(), FlashForm::automatic(u"tmrWord"_s));
    }

    void verifyDefinitionPhase(int card)
    {
        QCOMPARE(gOrderIndex, Integer(card));
        QCOMPARE(m_form->word(), FlashForm::wordOfCard(card));
        QCOMPARE(m_form->definition(), FlashForm::definitionOfCard(card));
        QCOMPARE(m_form->look(), FlashForm::automatic(u"tmrDef"_s));
    }

    std::unique_ptr<FlashForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgQuickFlash_Run_test>(argc, argv);
}

#include "dlgQuickFlash_Run_test.moc"
