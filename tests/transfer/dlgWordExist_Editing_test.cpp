// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/WordExistForm.h"

using namespace ImportTools;
using namespace Module1;

namespace {

const QString SureToChange =
    QStringLiteral("Are you sure you want to change the content of this word?");
const QString SureToDelete = QStringLiteral("Are you sure you want to delete 'CAT' ?");
const QString SearchEnded = QStringLiteral("Search ended. No more words found.");

QStringList unseen(const QString &locked)
{
    return {locked};
}

} // namespace

class dlgWordExist_Editing_test final : public QObject
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

    void lockedBoxesTakeNoText()
    {
        ask([this](const WordExistForm &form) {
            const QStringList before = form.existing();
            for (const char *box : {"txtCurWord", "txtCurDef", "txtCurSen"})
                form.type(box, QStringLiteral("x"));
            QCOMPARE(form.existing(), before);
            form.click("cmdAllowModify");
            QCOMPARE(form.state(), shownUnlocked());
            form.type("txtCurWord", QStringLiteral("x"));
            QCOMPARE(form.existing().constFirst(), QStringLiteral("x"));
            form.close();
        });
        QCOMPARE(openEntries(), m_entries); // typed, not updated
        QVERIFY(!gChanged);
    }

    void theKeyboardBeginsAtTheAnswers()
    {
        ask([](const WordExistForm &form) {
            QCOMPARE(QApplication::focusWidget(), &form.button("cmdYes"));
            form.close();
        });
    }

    void enterPressesTheButtonThatHasTheKeyboard()
    {
        gAddThis = true;
        ask([](const WordExistForm &form) {
            form.button("cmdNo").setFocus();
            Controls::press(Qt::Key_Return);
            QVERIFY(!form.form.isVisible());
        });
        QVERIFY(!gAddThis);
    }

    // Not Yes, which would drop what is being typed and add the word.
    void enterInAnUnlockedBoxUpdates()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            form.type("txtCurDef", QStringLiteral("a pet"));
            m_answers->expectMsgBox(SureToChange, QMessageBox::Cancel);
            Controls::press(Qt::Key_Return);
            QVERIFY(form.form.isVisible());
            form.close();
        });
        QCOMPARE(openEntries(), m_entries);
    }

    void updateStoresTheBoxesWithoutOuterBlanks()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            form.type("txtCurWord", QStringLiteral(" cat "));
            form.type("txtCurDef", QStringLiteral("   a  small animal"));
            form.type("txtCurSen", QStringLiteral("Cats sleep.  "));
            m_answers->expectMsgBox(SureToChange, QMessageBox::Ok, [](QMessageBox &box) {
                QCOMPARE(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
            });
            form.click("cmdUpdate");
            QVERIFY(form.form.isVisible());
            QCOMPARE(form.state(), shownUnlocked());
            QVERIFY(gChanged);
            QCOMPARE(entry(2), QStringLiteral("cat|a  small animal|Cats sleep."));
            form.close();
        });
        QStringList expected = m_entries;
        expected[1] = QStringLiteral("cat|a  small animal|Cats sleep.");
        QCOMPARE(openEntries(), expected);
    }

    void updateCancelledChangesNothing()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            form.type("txtCurWord", QStringLiteral("tomcat"));
            m_answers->expectMsgBox(SureToChange, QMessageBox::Cancel);
            form.click("cmdUpdate");
            QVERIFY(form.form.isVisible());
            QCOMPARE(form.state(), shownUnlocked());
            // What was typed stays, so that it can still be stored.
            QCOMPARE(form.existing().constFirst(), QStringLiteral("tomcat"));
            form.close();
        });
        QCOMPARE(openEntries(), m_entries);
        QVERIFY(!gChanged);
    }

    void updateMayBeRepeated()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            for (const QString &word : {QStringLiteral("tom"), QString(), QStringLiteral("tib")}) {
                form.type("txtCurWord", word);
                m_answers->expectMsgBox(SureToChange, QMessageBox::Ok);
                form.click("cmdUpdate");
                QCOMPARE(parts(entry(2)).constFirst(), word);
            }
            form.click("cmdNo");
        });
        QCOMPARE(parts(entry(2)).constFirst(), QStringLiteral("tib"));
    }

    void updateKeepsTheLinesOfATextThatWasNotTouched()
    {
        setOpenEntries({QStringLiteral("cat|one\r\ntwo|\u201CThree\u201D\r\n\r\nfour")});
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            form.type("txtCurWord", QStringLiteral("cats"));
            m_answers->expectMsgBox(SureToChange, QMessageBox::Ok);
            form.click("cmdUpdate");
            form.close();
        });
        QCOMPARE(openEntries(),
                 QStringList{QStringLiteral("cats|one\r\ntwo|\u201CThree\u201D\r\n\r\nfour")});
    }

    void deleteNamesTheIncomingWordAndTakesTheExistingEntryOut()
    {
        ask([this](const WordExistForm &form) {
            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes, [](QMessageBox &box) {
                QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
            });
            form.click("cmdDelete");
            QVERIFY(form.form.isVisible());
            QCOMPARE(form.existing(), parts(QString()));
            QCOMPARE(gVocabList().CurrentWord().toInt(), 1); // the entry before it
            form.close();
        });
        QStringList expected = m_entries;
        expected.removeAt(1);
        QCOMPARE(openEntries(), expected);
        QVERIFY(!gChanged);
    }

    void deleteRefusedChangesNothing()
    {
        ask([this](const WordExistForm &form) {
            const QStringList before = form.existing();
            m_answers->escapeMsgBox(SureToDelete);
            form.click("cmdDelete");
            QVERIFY(form.form.isVisible());
            QCOMPARE(form.existing(), before);
            QCOMPARE(form.state(), shownLocked());
            QCOMPARE(gVocabList().CurrentWord().toInt(), 2);
            form.close();
        });
        QCOMPARE(openEntries(), m_entries);
    }

    void deletingTheOnlyEntryLeavesAnEmptyList()
    {
        setOpenEntries({QStringLiteral("cat|an animal")});
        ask([this](const WordExistForm &form) {
            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            m_answers->expectMsgBox(SearchEnded);
            form.click("cmdFindNext");
            QCOMPARE(form.state(), unseen(QStringLiteral("locked")));
            form.click("cmdYes");
        });
        QCOMPARE(openEntries(), QStringList());
    }

    void findNextShowsTheNextEntryWithTheWord()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdFindNext");
            QCOMPARE(form.frame(), QStringLiteral("Current word: 4"));
            QCOMPARE(form.existing(), parts(QStringLiteral("Cat|a whip")));
            QCOMPARE(form.state(), shownLocked());
            QCOMPARE(gVocabList().CurrentWord().toInt(), 4);
            // The question and the incoming entry are still the same.
            QCOMPARE(form.question(), QStringLiteral("'cat' already exist. Add anyway?"));
            QCOMPARE(form.incoming(), parts(QStringLiteral("CAT|a pet|My cat is black.")));

            form.click("cmdFindNext");
            QCOMPARE(form.frame(), QStringLiteral("Current word: 5"));
            QCOMPARE(form.existing(), parts(QStringLiteral("caT|a boat|We sailed the cat.")));
            form.close();
        });
        QCOMPARE(openEntries(), m_entries);
    }

    void findNextWithoutAFurtherMatchKeepsTheOneOnShow()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdFindNext");
            form.click("cmdFindNext");
            for (int time = 0; time < 2; ++time) { // it does not start over
                m_answers->expectMsgBox(SearchEnded, QMessageBox::Ok, [](QMessageBox &box) {
                    QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
                });
                form.click("cmdFindNext");
                QCOMPARE(form.frame(), QStringLiteral("Current word: 5"));
                QCOMPARE(form.existing(), parts(QStringLiteral("caT|a boat|We sailed the cat.")));
                QCOMPARE(gVocabList().CurrentWord().toInt(), 5);
            }
            form.close();
        });
    }

    void findNextWithASingleMatchKeepsTheFirst()
    {
        setOpenEntries({QStringLiteral("dog"), QStringLiteral("cat|an animal"),
                        QStringLiteral("cats"), QStringLiteral("a cat")});
        ask([this](const WordExistForm &form) {
            m_answers->expectMsgBox(SearchEnded);
            form.click("cmdFindNext");
            QCOMPARE(form.frame(), QStringLiteral("Word in current wordlist: 2"));
            QCOMPARE(form.existing(), parts(QStringLiteral("cat|an animal")));
            QCOMPARE(form.state(), shownLocked());
            QCOMPARE(gVocabList().CurrentWord().toInt(), 2);
            form.close();
        });
    }

    void findNextKeepsUnlockedBoxesUnlocked()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            form.click("cmdFindNext");
            QCOMPARE(form.state(), shownUnlocked());
            QCOMPARE(form.existing(), parts(QStringLiteral("Cat|a whip")));
            form.type("txtCurDef", QStringLiteral("a rope"));
            m_answers->expectMsgBox(SureToChange, QMessageBox::Ok);
            form.click("cmdUpdate");
            form.close();
        });
        QStringList expected = m_entries;
        expected[3] = QStringLiteral("Cat|a rope"); // the one found, not the first
        QCOMPARE(openEntries(), expected);
    }

    void deleteTakesTheEntryThatWasFound()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdFindNext");
            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            form.close();
        });
        QStringList expected = m_entries;
        expected.removeAt(3);
        QCOMPARE(openEntries(), expected);
    }

    // The entry that is current after a deletion has not been seen by anybody.
    void afterADeletionNothingCanBeEditedUntilAnEntryIsShown_data()
    {
        QTest::addColumn<bool>("unlocked");
        QTest::newRow("locked") << false;
        QTest::newRow("unlocked") << true;
    }

    void afterADeletionNothingCanBeEditedUntilAnEntryIsShown()
    {
        QFETCH(bool, unlocked);
        const QString lock = unlocked ? QStringLiteral("unlocked") : QStringLiteral("locked");
        ask([this, unlocked, lock](const WordExistForm &form) {
            if (unlocked)
                form.click("cmdAllowModify");
            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            QCOMPARE(form.state(), unseen(lock));
            QVERIFY(form.button("cmdFindNext").isEnabled());

            form.click("cmdFindNext");
            QCOMPARE(form.frame(), QStringLiteral("Current word: 3"));
            QCOMPARE(form.existing(), parts(QStringLiteral("Cat|a whip")));
            QCOMPARE(form.state(), unlocked ? shownUnlocked() : shownLocked());

            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            form.click("cmdFindNext");
            QCOMPARE(form.frame(), QStringLiteral("Current word: 3"));
            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            m_answers->expectMsgBox(SearchEnded);
            form.click("cmdFindNext");
            QCOMPARE(form.state(), unseen(lock));
            QCOMPARE(form.existing(), parts(QString()));
            form.close();
        });
        QCOMPARE(openEntries(), (QStringList{m_entries[0], m_entries[2]}));
    }

    // Deleting the first entry keeps position 1, and the search goes on behind it.
    void afterDeletingTheFirstEntryTheOneInItsPlaceIsPassedOver()
    {
        setOpenEntries({QStringLiteral("cat|1"), QStringLiteral("cat|2"), QStringLiteral("cat|3")});
        ask([this](const WordExistForm &form) {
            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            form.click("cmdFindNext");
            QCOMPARE(form.frame(), QStringLiteral("Current word: 2"));
            QCOMPARE(form.existing(), parts(QStringLiteral("cat|3")));
            form.close();
        });
    }

private:
    void ask(const std::function<void(const WordExistForm &)> &use)
    {
        WordExistQuestion(QStringLiteral("CAT|a pet|My cat is black.")).ask(*m_answers, use);
    }

    [[nodiscard]] static QString entry(int position) { return openEntries().at(position - 1); }

    const QStringList m_entries{QStringLiteral("dog|a pet"),
                                QStringLiteral("cat|an animal|The cat sleeps."),
                                QStringLiteral("cow|gives milk"), QStringLiteral("Cat|a whip"),
                                QStringLiteral("caT|a boat|We sailed the cat.")};
    std::unique_ptr<FreshState> m_state;
    std::unique_ptr<DialogAnswers> m_answers;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgWordExist_Editing_test>(argc, argv);
}

#include "dlgWordExist_Editing_test.moc"
