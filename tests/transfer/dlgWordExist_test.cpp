// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/WordExistForm.h"

using namespace ImportTools;
using namespace Module1;
using namespace Qt::StringLiterals;

class dlgWordExist_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshState>();
        m_answers = std::make_unique<DialogAnswers>();
        setOpenEntries(m_entries);
    }

    void cleanup()
    {
        QVERIFY(m_answers->allSeen());
        m_answers.reset();
        m_state.reset();
    }

    void theControlsHaveTheirCaptions()
    {
        ask([](const WordExistForm &form) {
            QCOMPARE(form.form.windowTitle(), u"Word already existed"_s);
            QCOMPARE(Controls::find<QGroupBox>(form.form, "Frame2").title(),
                     u"Add this word to current wordlist"_s);
            const QList<std::pair<const char *, QString>> captions{
                {"cmdYes", u"&Yes"_s},
                {"cmdNo", u"&No"_s},
                {"cmdYesToAll", u"Y&es To All"_s},
                {"cmdNoToAll", u"N&o To All"_s},
                {"cmdAbort", u"&Abort"_s},
                {"cmdFindNext", u"Find Next"_s},
                {"cmdAllowModify", u"Allow Modify"_s},
                {"cmdUpdate", u"Update changes"_s},
                {"cmdDelete", u"Delete"_s}};
            for (const auto &[name, caption] : captions) {
                QCOMPARE(form.button(name).text(), caption);
                QVERIFY(form.button(name).isVisible());
            }
            form.close();
        });
    }

    void theIncomingEntryIsShownBesideTheExistingOne()
    {
        ask([](const WordExistForm &form) {
            QCOMPARE(form.question(), u"'cat' already exist. Add anyway?"_s);
            QCOMPARE(form.frame(), u"Word in current wordlist: 2"_s);
            QCOMPARE(form.existing(), parts(u"cat|an animal|The cat sleeps."_s));
            QCOMPARE(form.incoming(), parts(u"CAT|a pet|My cat is black."_s));
            QCOMPARE(form.state(), shownLocked());
            QVERIFY(form.button("cmdFindNext").isEnabled());
            form.close();
        });
    }

    void aLongWordIsShownFromItsStart()
    {
        const QString word = u"abcdefghij"_s.repeated(30);
        setOpenEntries({word + u"|first"_s, word + u"|second"_s});
        WordExistQuestion(word).ask(*m_answers, [](const WordExistForm &form) {
            const auto firstShown = [&form](const char *name) {
                auto &box = Controls::find<QLineEdit>(form.form, name);
                box.grab(); // scrolls to its cursor
                return box.cursorPositionAt({0, box.height() / 2});
            };
            QCOMPARE(firstShown("txtImportWord"), 0);
            QCOMPARE(firstShown("txtCurWord"), 0);
            form.click("cmdFindNext");
            QCOMPARE(firstShown("txtCurWord"), 0);
            form.close();
        });
    }

    void thePositionIsWrittenInDecimal()
    {
        QStringList entries;
        for (int i = 1; i <= 12; ++i)
            entries += u"word %1"_s.arg(i);
        setOpenEntries(entries);
        WordExistQuestion(u"word 12"_s).ask(*m_answers, [](const WordExistForm &form) {
            QCOMPARE(form.frame(), u"Word in current wordlist: 12"_s);
            form.close();
        });
    }

    void textsAreShownAsTheyAre()
    {
        const QString word = u"<b>R&D</b> \u00E9"_s;
        const QString entry = word + u"| two\r\nlines |\ttab"_s;
        setOpenEntries({entry});
        WordExistQuestion(entry).ask(*m_answers, [&](const WordExistForm &form) {
            QCOMPARE(form.question(), u'\'' + word + u"' already exist. Add anyway?"_s);
            QCOMPARE(form.existing(), parts(entry));
            QCOMPARE(form.incoming(), parts(entry));
            QCOMPARE(Controls::find<QLabel>(form.form, "lblWordExist").textFormat(), Qt::PlainText);
            form.close();
        });
    }

    void eachAnswerSetsItsFlags_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("fromNone"); // the flags afterwards if none was set before
        QTest::addColumn<QString>("fromAll");  // the same if all were set before
        QTest::addColumn<int>("refreshes");
        const auto row = [](const char *answer, const char *fromNone, const char *fromAll,
                            int refreshes) {
            QTest::newRow(answer) << QString::fromLatin1(answer) << QString::fromLatin1(fromNone)
                                  << QString::fromLatin1(fromAll) << refreshes;
        };
        row("cmdYes", "Tase", "TaSe", 1);
        row("cmdNo", "tase", "taSe", 0);
        row("cmdYesToAll", "tAse", "tASe", 1);
        row("cmdNoToAll", "taSe", "taSe", 1);
        row("cmdAbort", "tasE", "taSE", 1);
        row(Close, "tase", "taSE", 0);
    }

    void eachAnswerSetsItsFlags()
    {
        QFETCH(QString, answer);
        for (const bool before : {false, true}) {
            gAddThis = gAddAll = gSkipAll = gStopImport = before;
            const int refreshes = ask([&](const WordExistForm &form) {
                // Opening clears these two flags only.
                QCOMPARE(flags(), before ? u"taSE"_s : u"tase"_s);
                giveAnswer(form.form, answer);
            });
            QTEST(flags(), before ? "fromAll" : "fromNone");
            QTEST(refreshes, "refreshes");
        }
        QCOMPARE(openEntries(), m_entries);
        QVERIFY(!gChanged);
    }

    void escClosesWithoutAnAnswer()
    {
        gSkipAll = gStopImport = true;
        const int refreshes =
            ask([](const WordExistForm &form) { QTest::keyClick(&form.form, Qt::Key_Escape); });
        QCOMPARE(flags(), u"taSE"_s);
        QCOMPARE(refreshes, 0);
    }

    void theAnswersHaveKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("flags");
        QTest::newRow("Alt+Y") << int(Qt::Key_Y) << u"Tase"_s;
        QTest::newRow("Alt+N") << int(Qt::Key_N) << u"tase"_s;
        QTest::newRow("Alt+E") << int(Qt::Key_E) << u"tAse"_s;
        QTest::newRow("Alt+O") << int(Qt::Key_O) << u"taSe"_s;
        QTest::newRow("Alt+A") << int(Qt::Key_A) << u"tasE"_s;
    }

    void theAnswersHaveKeys()
    {
        QFETCH(int, key);
        gStopImport = key != Qt::Key_A;
        ask([key](const WordExistForm &form) {
            QVERIFY(QTest::qWaitForWindowActive(&form.form));
            QTest::keyClick(&form.form, Qt::Key(key), Qt::AltModifier);
            QTRY_VERIFY(!form.form.isVisible());
        });
        QTEST(flags(), "flags");
    }

    // The key was pressed for the question before.
    void aKeyHeldDownAnswersNothing_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Enter of the number pad") << int(Qt::Key_Enter);
        QTest::newRow("Esc") << int(Qt::Key_Escape);
    }

    void aKeyHeldDownAnswersNothing()
    {
        QFETCH(int, key);
        ask([key](const WordExistForm &form) {
            for (const char *control : {"cmdYes", "cmdNoToAll", "txtCurWord"}) {
                Controls::find<QWidget>(form.form, control).setFocus();
                Controls::holdOn(Qt::Key(key));
                QVERIFY(form.form.isVisible());
            }
            form.close();
        });
        QCOMPARE(flags(), u"tase"_s);
    }

    void openingTwiceStartsBothTimesLocked()
    {
        for (int time = 0; time < 2; ++time)
            ask([](const WordExistForm &form) {
                QCOMPARE(form.state(), shownLocked());
                QCOMPARE(form.frame(), u"Word in current wordlist: 2"_s);
                form.click("cmdAllowModify");
                QCOMPARE(form.state(), shownUnlocked());
                form.click("cmdNo");
            });
    }

    void aLongWordDoesNotWidenTheDialog_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("without a blank") << QString(5000, u'x');
        QTest::newRow("with blanks") << u"abc "_s.repeated(1250) + u'.';
    }

    void aLongWordDoesNotWidenTheDialog()
    {
        QFETCH(QString, word);
        setOpenEntries({word, u"cat"_s});
        const QSize ofShort = smallestSize(u"cat"_s);
        QCOMPARE(smallestSize(word), ofShort);
    }

    void sizeAndPlaceStayFromOneWordToTheNext_data()
    {
        QTest::addColumn<QString>("answer");
        for (const char *answer : {"cmdYes", "cmdNo", Close})
            QTest::newRow(answer) << QString::fromLatin1(answer);
    }

    void sizeAndPlaceStayFromOneWordToTheNext()
    {
        QFETCH(QString, answer);
        QRect chosen;
        ask([&](const WordExistForm &form) {
            form.form.setGeometry(form.form.geometry() == QRect(60, 50, 730, 480)
                                      ? QRect(40, 70, 710, 450)
                                      : QRect(60, 50, 730, 480));
            chosen = form.form.geometry();
            giveAnswer(form.form, answer);
        });
        ask([&chosen](const WordExistForm &form) {
            QCOMPARE(form.form.geometry(), chosen);
            form.close();
        });
    }

private:
    // Checks that the dialog shows the whole question about the word.
    QSize smallestSize(const QString &word)
    {
        QSize size;
        WordExistQuestion(word).ask(*m_answers, [&](const WordExistForm &form) {
            QCOMPARE(form.question(), u'\'' + word + u"' already exist. Add anyway?"_s);
            size = form.form.minimumSize();
            form.close();
        });
        return size;
    }

    int ask(const std::function<void(const WordExistForm &)> &use)
    {
        return WordExistQuestion(u"CAT|a pet|My cat is black."_s).ask(*m_answers, use);
    }

    const QStringList m_entries{u"dog|a pet"_s, u"cat|an animal|The cat sleeps."_s,
                                u"cow|gives milk"_s};
    std::unique_ptr<FreshState> m_state;
    std::unique_ptr<DialogAnswers> m_answers;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgWordExist_test>(argc, argv);
}

#include "dlgWordExist_test.moc"
