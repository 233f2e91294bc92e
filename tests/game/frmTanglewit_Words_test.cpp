// SPDX-License-Identifier: GPL-3.0-or-later
// How words are shown, also very long and very short ones.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "runtime/RandomNumbers.h"
#include "support/FormTest.h"
#include "support/PaintCount.h"

#include <vector>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

QString typeOf(const QWidget &label)
{
    return u"%1%2"_s.arg(label.font().pointSize())
        .arg(label.font().bold() ? u" bold"_s : QString());
}

} // namespace

class frmTanglewit_Words_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<GameForm>(); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void theTypeSizeDependsOnTheLengthsOfTheTexts_data()
    {
        QTest::addColumn<int>("word");
        QTest::addColumn<int>("definition");
        QTest::addColumn<int>("sentence");
        QTest::addColumn<QString>("types");
        QTest::newRow("short") << 3 << 0 << 0 << u"34 bold, 18, 14"_s;
        QTest::newRow("word 16") << 16 << 10 << 10 << u"34 bold, 18, 14"_s;
        QTest::newRow("word 17") << 17 << 10 << 10 << u"18, 18, 14"_s;
        QTest::newRow("word 25") << 25 << 10 << 10 << u"18, 18, 14"_s;
        QTest::newRow("word 26") << 26 << 10 << 10 << u"16, 18, 14"_s;
        QTest::newRow("word 30") << 30 << 10 << 10 << u"16, 18, 14"_s;
        QTest::newRow("word 31") << 31 << 10 << 10 << u"14, 18, 14"_s;
        QTest::newRow("definition 100") << 5 << 100 << 10 << u"34 bold, 18, 14"_s;
        QTest::newRow("definition 101") << 5 << 101 << 10 << u"34 bold, 14, 14"_s;
        QTest::newRow("definition 150") << 5 << 150 << 10 << u"34 bold, 14, 14"_s;
        QTest::newRow("definition 151") << 5 << 151 << 10 << u"34 bold, 12, 14"_s;
        QTest::newRow("sentence 150") << 5 << 10 << 150 << u"34 bold, 18, 14"_s;
        QTest::newRow("sentence 151") << 5 << 10 << 151 << u"34 bold, 18, 12"_s;
    }

    void theTypeSizeDependsOnTheLengthsOfTheTexts()
    {
        QFETCH(int, word);
        QFETCH(int, definition);
        QFETCH(int, sentence);
        QFETCH(QString, types);
        gVocabList().ClearList();
        gVocabList().AddVocab(GameForm::longWord(word), QString(definition, u'x'),
                              QString(sentence, u'y'));
        m_form->start();
        QCOMPARE(shownTypes(), types);
        QCOMPARE(m_form->text("lblClue"), QString(definition, u'x'));
        QCOMPARE(m_form->text("lblSentence"), QString(sentence, u'y'));
        m_form->answerWrong();
        QCOMPARE(shownTypes(), types);
    }

    void theTypeChangesWithTheWord_data()
    {
        QTest::addColumn<bool>("byTimeOut");
        QTest::newRow("answer") << false;
        QTest::newRow("time-out") << true;
    }

    void theTypeChangesWithTheWord()
    {
        QFETCH(bool, byTimeOut);
        GameForm::fill({u"apple"_s, GameForm::longWord(28)});
        m_form->start();
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(shownTypes(),
                     GameForm::word() == u"apple"_s ? u"34 bold, 18, 14"_s : u"16, 18, 14"_s);
            if (byTimeOut && m_form->text("lblCountDown") != u"0"_s)
                m_form->timeOut();
            else if (byTimeOut)
                m_form->passTime();
            else
                m_form->answerRight();
        }
    }

    void promptsHaveTheTypeOfShortClues()
    {
        gVocabList().ClearList();
        gVocabList().AddVocab(u"apple"_s, QString(200, u'x'), {});
        m_form->open();
        QCOMPARE(typeOf(m_form->control<QLabel>("lblClue")), u"18"_s);
        m_form->click("cmdStart");
        QCOMPARE(typeOf(m_form->control<QLabel>("lblClue")), u"12"_s);
        m_form->loseAllLives();
        QCOMPARE(typeOf(m_form->control<QLabel>("lblClue")), u"18"_s);
    }

    void theSentenceIsBlanked()
    {
        gVocabList().ClearList();
        gVocabList().AddVocab(u"cat"_s, {}, u"The category was cat."_s);
        m_form->start();
        QCOMPARE(m_form->text("lblSentence"), u"The _____ was _____."_s);
    }

    void textsAreShownAsPlainText()
    {
        gVocabList().ClearList();
        gVocabList().AddVocab(u"<b>a&b"_s, u"<i>not</i> &markup &amp;"_s, u"<u>x</u> & y"_s);
        m_form->start();
        m_form->passTime(21);
        QCOMPARE(m_form->tiles().constFirst(), u"13 <"_s);
        for (const char *label : {"lblScrambledWord", "lblClue", "lblSentence"})
            QCOMPARE(m_form->control<QLabel>(label).textFormat(), Qt::PlainText);
        QCOMPARE(m_form->text("lblClue"), u"<i>not</i> &markup &amp;"_s);
        QCOMPARE(m_form->text("lblSentence"), u"<u>x</u> & y"_s);
        m_form->answerRight();
        QCOMPARE(m_form->lines("lstHits"), QStringList{u"<b>a&b"_s});
    }

    void showAndHideSwitchTheScrambledWordInEveryState_data()
    {
        GameForm::addStates({"ready", "playing", "over"});
    }

    void showAndHideSwitchTheScrambledWordInEveryState()
    {
        QFETCH(QString, state);
        m_form->open();
        if (state != u"ready"_s)
            m_form->click("cmdStart");
        if (state == u"over"_s)
            m_form->loseAllLives();
        const QString numbers = m_form->numbers();
        const QPoint place = m_form->button("cmdHide").geometry().bottomRight();
        auto &word = m_form->control<QWidget>("lblScrambledWord");
        for (int i = 0; i < 2; ++i) {
            QVERIFY(word.isVisible());
            QVERIFY(!m_form->button("cmdShow").isVisible());
            m_form->click("cmdHide");
            QVERIFY(!word.isVisible());
            QVERIFY(!m_form->button("cmdHide").isVisible());
            QCOMPARE(m_form->answerBox().hasFocus(), state == u"playing"_s);
            QCOMPARE(m_form->button("cmdShow").geometry().bottomRight(), place);
            m_form->window().setFocus();
            m_form->click("cmdShow");
            QCOMPARE(m_form->answerBox().hasFocus(), state == u"playing"_s);
        }
        QVERIFY(word.isVisible());
        QCOMPARE(m_form->numbers(), numbers);
    }

    void lettersAfterTheThirtiethHaveNoTile_data()
    {
        QTest::addColumn<int>("letters");
        QTest::newRow("30") << 30;
        QTest::newRow("31") << 31;
        QTest::newRow("45") << 45;
        QTest::newRow("300") << 300;
    }

    void lettersAfterTheThirtiethHaveNoTile()
    {
        QFETCH(int, letters);
        const QString word = GameForm::longWord(letters);
        GameForm::fill({word});
        m_form->start();
        QCOMPARE(m_form->text("lblScrambledWord").size(), letters);
        m_form->passTime(29);
        QStringList tiles;
        for (int i = 1; i <= 30; ++i)
            tiles += u"%1 %2"_s.arg(i).arg(word[i - 1]);
        m_form->expectMiss([&](QDialog &) { QCOMPARE(m_form->tiles(), tiles); });
        m_form->passTime();
        QCOMPARE(m_form->lines("lstMisses"), QStringList{word + u" :: (Timer Expired)"_s});
        QCOMPARE(m_form->look(), GameForm::playing());
    }

    void allLettersOfALongWordCount()
    {
        GameForm::fill({GameForm::longWord(45)});
        m_form->start();
        m_form->answerRight();
        QCOMPARE(gScore, Integer(44));
        m_form->passTime(9); // a letter every three seconds
        QCOMPARE(m_form->tiles().size(), 3);
        m_form->answerRight();
        QCOMPARE(gScore, Integer(44 + 41));
    }

    void aShortWordLeavesTheWindowAlive_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("one letter") << u"a"_s;
        QTest::newRow("two letters") << u"ab"_s;
        QTest::newRow("empty") << QString();
    }

    void aShortWordLeavesTheWindowAlive()
    {
        QFETCH(QString, word);
        GameForm::fill({word});
        m_form->open();
        for (int game = 0; game < 2; ++game) {
            startStuck(word);
            const PaintCount painted(m_form->window());
            m_form->window().update();
            QTRY_VERIFY(painted.count() > 0);
            QVERIFY(m_form->text("lblScrambledWord").isEmpty());
            if (!word.isEmpty())
                QCOMPARE(m_form->text("lblClue"), tooShort());
            m_form->click("cmdRestart");
            QCOMPARE(m_form->look(), GameForm::ready());
            QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
        }
        startStuck(word);
        m_form->expectTop10();
        m_form->click("cmdQuit");
        QVERIFY(m_form->mainWindow().isVisible());
        QVERIFY(!m_form->window().isVisible());

        m_form->open();
        startStuck(word);
        m_form->window().close();
        QVERIFY(m_form->mainWindow().isVisible());

        // A game with another list is not affected.
        GameForm::fill(GameForm::fiveWords());
        m_form->start();
        QCOMPARE(m_form->look(), GameForm::playing());
        m_form->answerRight();
        QCOMPARE(m_form->numbers(), u"4 1 30 5"_s);
    }

    void aShortWordLeavesTheListAsItWas()
    {
        GameForm::fill({u"ab"_s});
        m_form->start();
        GameForm::fill({u"cat"_s});
        gVocabList().CurrentWord(1);
        // The scramble refuses one of the six orders of three letters and draws again.
        for (int i = 0; i < 300; ++i)
            QCOMPARE(gVocabList().ScrambledWord().size(), 3);
        QCOMPARE(gVocabList().NumWords(), Integer(1));
    }

    void theGameStandsStillForAShortWordAfterAnother_data()
    {
        QTest::addColumn<bool>("byTimeOut");
        QTest::newRow("answer") << false;
        QTest::newRow("time-out") << true;
    }

    void theGameStandsStillForAShortWordAfterAnother()
    {
        QFETCH(bool, byTimeOut);
        GameForm::fill({u"apple"_s, u"ab"_s});
        startInOrder({0.0F, 0.9F});
        if (byTimeOut) {
            m_form->timeOut();
        } else {
            m_form->passTime(8); // until a letter is uncovered
            m_form->answerRight();
        }
        QCOMPARE(GameForm::word(), u"ab"_s);
        QCOMPARE(m_form->tiles(), QStringList());
        QCOMPARE(m_form->text("lblScrambledWord"), QString());
        QCOMPARE(m_form->text("lblSentence"), QString());
        QCOMPARE(m_form->text("lblClue"), tooShort());
        QCOMPARE(m_form->text("lblWordsLeft"), u"Last word before a shuffle"_s);
        const QString numbers = m_form->numbers();
        const QStringList hits = m_form->lines("lstHits");
        const QStringList misses = m_form->lines("lstMisses");
        m_form->passTime(40);
        m_form->answer(u"ab"_s);
        m_form->answer(u"wrong"_s);
        QCOMPARE(m_form->numbers(), numbers);
        QCOMPARE(m_form->lines("lstHits"), hits);
        QCOMPARE(m_form->lines("lstMisses"), misses);
        m_form->answers.useForm("dlgGameOver",
                                [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        m_form->click("cmdViewTop10");
        m_form->waitForWindow();
        m_form->click("cmdRestart");
        QCOMPARE(m_form->look(), GameForm::ready());
        QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
    }

    void theLastLifeEndsTheGameBeforeAShortWord()
    {
        GameForm::fill(GameForm::fiveWords() << u"ab"_s);
        startInOrder({0.0F, 0.2F, 0.4F, 0.6F, 0.7F, 0.9F});
        m_form->loseAllLives();
        QCOMPARE(GameForm::word(), u"ab"_s);
        QCOMPARE(m_form->look(), GameForm::over());
    }

    void anEmptyWordAfterAnotherIsReportedAndTheWindowLives()
    {
        GameForm::fill({u"apple"_s, QString()});
        startInOrder({0.0F, 0.9F});
        expectNoWord();
        m_form->answerRight();
        QVERIFY(m_form->answers.allSeen());
        m_form->waitForWindow();
        m_form->passTime(3);
        QCOMPARE(m_form->look(), GameForm::playing());
        QCOMPARE(m_form->numbers(), u"4 1 27 5"_s);
        m_form->click("cmdRestart");
        QCOMPARE(m_form->look(), GameForm::ready());
    }

    void theLastLifeEndsTheGameBeforeAnEmptyWord()
    {
        GameForm::fill(GameForm::fiveWords() << QString());
        startInOrder({0.0F, 0.2F, 0.4F, 0.6F, 0.7F, 0.9F});
        m_form->loseAllLives();
        QCOMPARE(GameForm::word(), QString());
        QCOMPARE(m_form->look(), GameForm::over());
    }

    void aWordTooLongToBeCountedIsReportedOnce_data()
    {
        QTest::addColumn<bool>("byTimeOut");
        QTest::newRow("answer") << false;
        QTest::newRow("time-out") << true;
    }

    void aWordTooLongToBeCountedIsReportedOnce()
    {
        QFETCH(bool, byTimeOut);
        GameForm::fill({u"apple"_s, QString(32'768, u'x')});
        startInOrder({0.0F, 0.9F});
        if (byTimeOut)
            m_form->expectMiss();
        m_form->answers.expectMsgBox(u"Run-time error '6':\n\nOverflow"_s);
        if (byTimeOut)
            m_form->passTime(30);
        else
            m_form->answerRight();
        QVERIFY(m_form->answers.allSeen());
        m_form->waitForWindow();
        const QString numbers = m_form->numbers();
        m_form->passTime(40);
        QCOMPARE(m_form->numbers(), numbers);
        m_form->click("cmdRestart");
        QCOMPARE(m_form->look(), GameForm::ready());
    }

    void theLastLifeEndsTheGameBeforeAWordThatIsTooLong()
    {
        GameForm::fill(GameForm::fiveWords() << QString(32'768, u'x'));
        startInOrder({0.0F, 0.2F, 0.4F, 0.6F, 0.7F, 0.9F});
        m_form->loseAllLives();
        QCOMPARE(m_form->look(), GameForm::over());
    }

private:
    [[nodiscard]] static QString tooShort()
    {
        return u"This word is too short to scramble. Please click Restart."_s;
    }

    [[nodiscard]] QString shownTypes()
    {
        return QStringList{typeOf(m_form->control<QLabel>("lblScrambledWord")),
                           typeOf(m_form->control<QLabel>("lblClue")),
                           typeOf(m_form->control<QLabel>("lblSentence"))}
            .join(u", "_s);
    }

    void expectNoWord()
    {
        m_form->answers.expectMsgBox(u"Run-time error '9':\n\nSubscript out of range"_s);
    }

    // Starts a game whose first word cannot be scrambled.
    void startStuck(const QString &word)
    {
        m_form->waitForWindow();
        if (word.isEmpty())
            expectNoWord();
        m_form->click("cmdStart");
        m_form->waitForWindow();
        QVERIFY(m_form->button("cmdEnter").isVisible());
        QVERIFY(!m_form->answerBox().isEnabled());
        QVERIFY(!m_form->timer().isActive());
        QVERIFY(!m_form->levelSwitch().isEnabled());
        QTest::keyClick(&m_form->window(), Qt::Key_Return);
        m_form->expectTop10();
        m_form->click("cmdViewTop10");
        m_form->waitForWindow();
        QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
    }

    // Starts a game in the order of the list. numbers: the random numbers that draw this order.
    void startInOrder(std::vector<float> numbers)
    {
        for (const float forTheScramble : {0.0F, 0.9F, 0.3F, 0.7F, 0.5F})
            numbers.push_back(forTheScramble);
        m_form->open();
        std::size_t drawn = 0;
        RandomNumbers::setSource([&] { return numbers[drawn++ % numbers.size()]; });
        m_form->click("cmdStart");
        RandomNumbers::setSource({});
        QCOMPARE(m_form->look(), GameForm::playing());
        QCOMPARE(gVocabList().CurrentWord(), Integer(1));
    }

    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Words_test>(argc, argv);
}

#include "frmTanglewit_Words_test.moc"
