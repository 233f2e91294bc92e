// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/WordExistForm.h"

using namespace ImportTools;
using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString SureToChange = u"Are you sure you want to change the content of this word?"_s;
const QString SureToDelete = u"Are you sure you want to delete 'CAT' ?"_s;
const QString SearchEnded = u"Search ended. No more words found."_s;

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
                form.type(box, u"x"_s);
            QCOMPARE(form.existing(), before);
            form.click("cmdAllowModify");
            QCOMPARE(form.state(), shownUnlocked());
            form.type("txtCurWord", u"x"_s);
            QCOMPARE(form.existing().constFirst(), u"x"_s);
            form.close();
        });
        QCOMPARE(openEntries(), m_entries); // typed, not updated
        QVERIFY(!gChanged);
    }

    void theFocusIsOnAnAnswerAtFirst()
    {
        ask([](const WordExistForm &form) {
            QCOMPARE(QApplication::focusWidget(), &form.button("cmdYes"));
            form.close();
        });
    }

    // It would be on Delete, the next control that is enabled.
    void allowModifyPutsTheFocusIntoTheWord()
    {
        ask([](const WordExistForm &form) {
            form.button("cmdAllowModify").setFocus();
            Controls::press(Qt::Key_Space);
            QCOMPARE(form.state(), shownUnlocked());
            QCOMPARE(Controls::focusedControl(), u"txtCurWord"_s);
            form.close();
        });
    }

    void enterPressesTheButtonWithTheFocus()
    {
        gAddThis = true;
        ask([](const WordExistForm &form) {
            form.button("cmdNo").setFocus();
            Controls::press(Qt::Key_Return);
            QVERIFY(!form.form.isVisible());
        });
        QVERIFY(!gAddThis);
    }

    // Enter does not press Yes: that would lose the typed text and add the word.
    void enterInAnUnlockedBoxUpdates()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            form.type("txtCurDef", u"a pet"_s);
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
            form.type("txtCurWord", u" cat "_s);
            form.type("txtCurDef", u"   a  small animal"_s);
            form.type("txtCurSen", u"Cats sleep.  "_s);
            m_answers->expectMsgBox(SureToChange, QMessageBox::Ok, [](QMessageBox &box) {
                QCOMPARE(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
            });
            form.click("cmdUpdate");
            QVERIFY(form.form.isVisible());
            QCOMPARE(form.state(), shownUnlocked());
            QVERIFY(gChanged);
            QCOMPARE(entry(2), u"cat|a  small animal|Cats sleep."_s);
            form.close();
        });
        QStringList expected = m_entries;
        expected[1] = u"cat|a  small animal|Cats sleep."_s;
        QCOMPARE(openEntries(), expected);
    }

    void updateCancelledChangesNothing()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            form.type("txtCurWord", u"tomcat"_s);
            m_answers->expectMsgBox(SureToChange, QMessageBox::Cancel);
            form.click("cmdUpdate");
            QVERIFY(form.form.isVisible());
            QCOMPARE(form.state(), shownUnlocked());
            // The typed text stays, so that it can still be stored.
            QCOMPARE(form.existing().constFirst(), u"tomcat"_s);
            form.close();
        });
        QCOMPARE(openEntries(), m_entries);
        QVERIFY(!gChanged);
    }

    void updateMayBeRepeated()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            for (const QString &word : {u"tom"_s, QString(), u"tib"_s}) {
                form.type("txtCurWord", word);
                m_answers->expectMsgBox(SureToChange, QMessageBox::Ok);
                form.click("cmdUpdate");
                QCOMPARE(parts(entry(2)).constFirst(), word);
            }
            form.click("cmdNo");
        });
        QCOMPARE(parts(entry(2)).constFirst(), u"tib"_s);
    }

    void updateKeepsTheLinesOfATextThatWasNotTouched()
    {
        setOpenEntries({u"cat|one\r\ntwo|\u201CThree\u201D\r\n\r\nfour"_s});
        ask([this](const WordExistForm &form) {
            form.click("cmdAllowModify");
            form.type("txtCurWord", u"cats"_s);
            m_answers->expectMsgBox(SureToChange, QMessageBox::Ok);
            form.click("cmdUpdate");
            form.close();
        });
        QCOMPARE(openEntries(), QStringList{u"cats|one\r\ntwo|\u201CThree\u201D\r\n\r\nfour"_s});
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
        setOpenEntries({u"cat|an animal"_s});
        ask([this](const WordExistForm &form) {
            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            m_answers->expectMsgBox(SearchEnded);
            form.click("cmdFindNext");
            QCOMPARE(form.state(), unseen(u"locked"_s));
            form.click("cmdYes");
        });
        QCOMPARE(openEntries(), QStringList());
    }

    void findNextShowsTheNextEntryWithTheWord()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdFindNext");
            QCOMPARE(form.frame(), u"Current word: 4"_s);
            QCOMPARE(form.existing(), parts(u"Cat|a whip"_s));
            QCOMPARE(form.state(), shownLocked());
            QCOMPARE(gVocabList().CurrentWord().toInt(), 4);
            // The question and the incoming entry are still the same.
            QCOMPARE(form.question(), u"'cat' already exist. Add anyway?"_s);
            QCOMPARE(form.incoming(), parts(u"CAT|a pet|My cat is black."_s));

            form.click("cmdFindNext");
            QCOMPARE(form.frame(), u"Current word: 5"_s);
            QCOMPARE(form.existing(), parts(u"caT|a boat|We sailed the cat."_s));
            form.close();
        });
        QCOMPARE(openEntries(), m_entries);
    }

    void findNextWithoutAFurtherMatchKeepsTheOneOnShow()
    {
        ask([this](const WordExistForm &form) {
            form.click("cmdFindNext");
            form.click("cmdFindNext");
            for (int time = 0; time < 2; ++time) { // the search does not start again
                m_answers->expectMsgBox(SearchEnded, QMessageBox::Ok, [](QMessageBox &box) {
                    QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
                });
                form.click("cmdFindNext");
                QCOMPARE(form.frame(), u"Current word: 5"_s);
                QCOMPARE(form.existing(), parts(u"caT|a boat|We sailed the cat."_s));
                QCOMPARE(gVocabList().CurrentWord().toInt(), 5);
            }
            form.close();
        });
    }

    void findNextWithASingleMatchKeepsTheFirst()
    {
        setOpenEntries({u"dog"_s, u"cat|an animal"_s, u"cats"_s, u"a cat"_s});
        ask([this](const WordExistForm &form) {
            m_answers->expectMsgBox(SearchEnded);
            form.click("cmdFindNext");
            QCOMPARE(form.frame(), u"Word in current wordlist: 2"_s);
            QCOMPARE(form.existing(), parts(u"cat|an animal"_s));
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
            QCOMPARE(form.existing(), parts(u"Cat|a whip"_s));
            form.type("txtCurDef", u"a rope"_s);
            m_answers->expectMsgBox(SureToChange, QMessageBox::Ok);
            form.click("cmdUpdate");
            form.close();
        });
        QStringList expected = m_entries;
        expected[3] = u"Cat|a rope"_s; // the entry found, not the first one
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

    // After a deletion the dialog does not show the entry that is current then.
    void afterADeletionNothingCanBeEditedUntilAnEntryIsShown_data()
    {
        QTest::addColumn<bool>("unlocked");
        QTest::newRow("locked") << false;
        QTest::newRow("unlocked") << true;
    }

    void afterADeletionNothingCanBeEditedUntilAnEntryIsShown()
    {
        QFETCH(bool, unlocked);
        const QString lock = unlocked ? u"unlocked"_s : u"locked"_s;
        ask([this, unlocked, lock](const WordExistForm &form) {
            if (unlocked)
                form.click("cmdAllowModify");
            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            QCOMPARE(form.state(), unseen(lock));
            QVERIFY(form.button("cmdFindNext").isEnabled());

            form.click("cmdFindNext");
            QCOMPARE(form.frame(), u"Current word: 3"_s);
            QCOMPARE(form.existing(), parts(u"Cat|a whip"_s));
            QCOMPARE(form.state(), unlocked ? shownUnlocked() : shownLocked());

            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            form.click("cmdFindNext");
            QCOMPARE(form.frame(), u"Current word: 3"_s);
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

    // Deleting the first entry keeps position 1, and the search continues after it.
    void afterDeletingTheFirstEntryTheOneInItsPlaceIsPassedOver()
    {
        setOpenEntries({u"cat|1"_s, u"cat|2"_s, u"cat|3"_s});
        ask([this](const WordExistForm &form) {
            m_answers->expectMsgBox(SureToDelete, QMessageBox::Yes);
            form.click("cmdDelete");
            form.click("cmdFindNext");
            QCOMPARE(form.frame(), u"Current word: 2"_s);
            QCOMPARE(form.existing(), parts(u"cat|3"_s));
            form.close();
        });
    }

private:
    void ask(const std::function<void(const WordExistForm &)> &use)
    {
        WordExistQuestion(u"CAT|a pet|My cat is black."_s).ask(*m_answers, use);
    }

    [[nodiscard]] static QString entry(int position) { return openEntries().at(position - 1); }

    const QStringList m_entries{u"dog|a pet"_s, u"cat|an animal|The cat sleeps."_s,
                                u"cow|gives milk"_s, u"Cat|a whip"_s,
                                u"caT|a boat|We sailed the cat."_s};
    std::unique_ptr<FreshState> m_state;
    std::unique_ptr<DialogAnswers> m_answers;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgWordExist_Editing_test>(argc, argv);
}

#include "dlgWordExist_Editing_test.moc"
