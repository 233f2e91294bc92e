// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/WordExistForm.h"

using namespace ImportTools;
using namespace Module1;

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

    void theControlsBearTheirCaptions()
    {
        ask([](const WordExistForm &form) {
            QCOMPARE(form.form.windowTitle(), QStringLiteral("Word already existed"));
            QCOMPARE(Controls::find<QGroupBox>(form.form, "Frame2").title(),
                     QStringLiteral("Add this word to current wordlist"));
            const QList<std::pair<const char *, QString>> captions{
                {"cmdYes", QStringLiteral("&Yes")},
                {"cmdNo", QStringLiteral("&No")},
                {"cmdYesToAll", QStringLiteral("Y&es To All")},
                {"cmdNoToAll", QStringLiteral("N&o To All")},
                {"cmdAbort", QStringLiteral("&Abort")},
                {"cmdFindNext", QStringLiteral("Find Next")},
                {"cmdAllowModify", QStringLiteral("Allow Modify")},
                {"cmdUpdate", QStringLiteral("Update changes")},
                {"cmdDelete", QStringLiteral("Delete")}};
            for (const auto &[name, caption] : captions) {
                QCOMPARE(form.button(name).text(), caption);
                QVERIFY(form.button(name).isVisible());
            }
            form.close();
        });
    }

    void theIncomingEntryStandsBesideTheExistingOne()
    {
        ask([](const WordExistForm &form) {
            QCOMPARE(form.question(), QStringLiteral("'cat' already exist. Add anyway?"));
            QCOMPARE(form.frame(), QStringLiteral("Word in current wordlist: 2"));
            QCOMPARE(form.existing(), parts(QStringLiteral("cat|an animal|The cat sleeps.")));
            QCOMPARE(form.incoming(), parts(QStringLiteral("CAT|a pet|My cat is black.")));
            QCOMPARE(form.state(), shownLocked());
            QVERIFY(form.button("cmdFindNext").isEnabled());
            form.close();
        });
    }

    void thePositionIsWrittenInDecimal()
    {
        QStringList entries;
        for (int i = 1; i <= 12; ++i)
            entries += QStringLiteral("word %1").arg(i);
        setOpenEntries(entries);
        WordExistQuestion(QStringLiteral("word 12")).ask(*m_answers, [](const WordExistForm &form) {
            QCOMPARE(form.frame(), QStringLiteral("Word in current wordlist: 12"));
            form.close();
        });
    }

    void textsAreShownAsTheyAre()
    {
        const QString word = QStringLiteral("<b>R&D</b> \u00E9");
        const QString entry = word + QStringLiteral("| two\r\nlines |\ttab");
        setOpenEntries({entry});
        WordExistQuestion(entry).ask(*m_answers, [&](const WordExistForm &form) {
            QCOMPARE(form.question(),
                     QLatin1Char('\'') + word + QStringLiteral("' already exist. Add anyway?"));
            QCOMPARE(form.existing(), parts(entry));
            QCOMPARE(form.incoming(), parts(entry));
            QCOMPARE(Controls::find<QLabel>(form.form, "lblWordExist").textFormat(), Qt::PlainText);
            form.close();
        });
    }

    void eachAnswerSetsItsFlags_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("fromNone"); // where no flag was set before
        QTest::addColumn<QString>("fromAll");  // where all were
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
                // Opening cleared these two and left the others.
                QCOMPARE(flags(), before ? QStringLiteral("taSE") : QStringLiteral("tase"));
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
        QCOMPARE(flags(), QStringLiteral("taSE"));
        QCOMPARE(refreshes, 0);
    }

    void theAnswersHaveKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("flags");
        QTest::newRow("Alt+Y") << int(Qt::Key_Y) << QStringLiteral("Tase");
        QTest::newRow("Alt+N") << int(Qt::Key_N) << QStringLiteral("tase");
        QTest::newRow("Alt+E") << int(Qt::Key_E) << QStringLiteral("tAse");
        QTest::newRow("Alt+O") << int(Qt::Key_O) << QStringLiteral("taSe");
        QTest::newRow("Alt+A") << int(Qt::Key_A) << QStringLiteral("tasE");
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

    // It has answered the question before this one.
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
        QCOMPARE(flags(), QStringLiteral("tase"));
    }

    void openingTwiceStartsBothTimesLocked()
    {
        for (int time = 0; time < 2; ++time)
            ask([](const WordExistForm &form) {
                QCOMPARE(form.state(), shownLocked());
                QCOMPARE(form.frame(), QStringLiteral("Word in current wordlist: 2"));
                form.click("cmdAllowModify");
                QCOMPARE(form.state(), shownUnlocked());
                form.click("cmdNo");
            });
    }

    void aLongWordDoesNotWidenTheDialog_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("without a blank") << QString(5000, QLatin1Char('x'));
        QTest::newRow("with blanks") << QStringLiteral("abc ").repeated(1250) + QLatin1Char('.');
    }

    void aLongWordDoesNotWidenTheDialog()
    {
        QFETCH(QString, word);
        setOpenEntries({word, QStringLiteral("cat")});
        const QSize ofShort = smallestSize(QStringLiteral("cat"));
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
    // Of the dialog about that word, whose question is there as a whole.
    QSize smallestSize(const QString &word)
    {
        QSize size;
        WordExistQuestion(word).ask(*m_answers, [&](const WordExistForm &form) {
            QCOMPARE(form.question(),
                     QLatin1Char('\'') + word + QStringLiteral("' already exist. Add anyway?"));
            size = form.form.minimumSize();
            form.close();
        });
        return size;
    }

    int ask(const std::function<void(const WordExistForm &)> &use)
    {
        return WordExistQuestion(QStringLiteral("CAT|a pet|My cat is black.")).ask(*m_answers, use);
    }

    const QStringList m_entries{QStringLiteral("dog|a pet"),
                                QStringLiteral("cat|an animal|The cat sleeps."),
                                QStringLiteral("cow|gives milk")};
    std::unique_ptr<FreshState> m_state;
    std::unique_ptr<DialogAnswers> m_answers;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgWordExist_test>(argc, argv);
}

#include "dlgWordExist_test.moc"
