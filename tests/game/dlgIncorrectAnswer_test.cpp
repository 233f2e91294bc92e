// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/dlgIncorrectAnswer.h"

#include "core/FreshState.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "game/OpenDialog.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <QAction>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <memory>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

struct AnswerForm : OpenDialog
{
    using OpenDialog::OpenDialog;

    [[nodiscard]] QLineEdit &box() const
    {
        return Controls::find<QLineEdit>(form, "txtUserAnswer");
    }

    void type(const QString &text) const { insert(box(), text); }
    void answer(const QString &word) const
    {
        type(word);
        click("cmdOK");
    }

    // The visible controls, and the default button.
    [[nodiscard]] QStringList state() const
    {
        QStringList state;
        for (const char *name :
             {"lblAnswerIs", "lblDefinition", "txtUserAnswer", "cmdOK", "cmdUp", "cmdDown"})
            if (Controls::find<QWidget>(form, name).isVisible())
                state += QLatin1String(name);
        for (const char *name : {"cmdOK", "cmdUp", "cmdDown"})
            if (button(name).isDefault())
                state += QLatin1String(name) + u" default"_s;
        return state;
    }
};

const QStringList WordShown{u"lblAnswerIs"_s, u"lblDefinition"_s, u"txtUserAnswer"_s, u"cmdOK"_s,
                            u"cmdDown"_s};
const QStringList WordHidden{u"lblDefinition"_s, u"txtUserAnswer"_s, u"cmdOK"_s, u"cmdUp"_s,
                             u"cmdOK default"_s};

} // namespace

class dlgIncorrectAnswer_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshState>();
        m_answers = std::make_unique<DialogAnswers>();
        setEntry(u"cat"_s, u"a small animal"_s);
    }

    void cleanup()
    {
        QVERIFY(m_answers->allSeen());
        m_answers.reset();
        m_state.reset();
    }

    void itOpensWithTheWordInSight()
    {
        ask([](const AnswerForm &form) {
            QCOMPARE(form.state(), WordShown);
            QCOMPARE(form.label("lblAnswerIs").text(), u"The correct answer is: cat"_s);
            QCOMPARE(form.label("lblDefinition").text(), u"a small animal"_s);
            QCOMPARE(form.box().text(), QString());
            QCOMPARE(form.form.focusWidget(), &form.box());
            QVERIFY(form.form.isModal());
            form.answer(u"cat"_s);
        });
    }

    void itIsTheCurrentEntrysWord()
    {
        gVocabList().AddVocab(u"dog"_s, u"another one"_s, {});
        gVocabList().CurrentWord(2);
        ask([](const AnswerForm &form) {
            QCOMPARE(form.label("lblAnswerIs").text(), u"The correct answer is: dog"_s);
            QCOMPARE(form.label("lblDefinition").text(), u"another one"_s);
            form.answer(u"dog"_s);
        });
        QCOMPARE(gVocabList().CurrentWord(), Integer(2));
        QCOMPARE(gVocabList().Word(), u"dog"_s);
    }

    void aLongDefinitionHasSmallerType_data()
    {
        QTest::addColumn<int>("characters");
        QTest::addColumn<int>("points");
        QTest::newRow("none") << 0 << 18;
        QTest::newRow("1") << 1 << 18;
        QTest::newRow("100") << 100 << 18;
        QTest::newRow("101") << 101 << 14;
        QTest::newRow("5000") << 5000 << 14;
    }

    void aLongDefinitionHasSmallerType()
    {
        QFETCH(int, characters);
        QFETCH(int, points);
        setEntry(u"cat"_s, QString(characters, u'x'));
        ask([&](const AnswerForm &form) {
            QCOMPARE(form.label("lblDefinition").text().size(), characters);
            QCOMPARE(form.label("lblDefinition").font().pointSize(), points);
            QCOMPARE(form.label("lblDefinition").fontInfo().pointSize(), points);
            form.answer(u"cat"_s);
        });
    }

    // By default a box takes up to 32,767 characters.
    void aWordThatOnlyAFileCanHoldCanBeEntered()
    {
        const QString word = u"abc "_s.repeated(8192) + u'd';
        setEntry(word, {});
        ask([&word](const AnswerForm &form) {
            form.answer(word);
            QVERIFY(!form.form.isVisible());
        });
    }

    void theWordCanBeHiddenAndShownAgain()
    {
        ask([](const AnswerForm &form) {
            for (int times = 1; times <= 2; ++times) {
                form.click("cmdDown");
                QCOMPARE(form.state(), WordHidden);
                QCOMPARE(form.form.focusWidget(), &form.box());
                form.click("cmdUp");
                QCOMPARE(form.state(), WordShown);
                QCOMPARE(form.label("lblAnswerIs").text(), u"The correct answer is: cat"_s);
            }
            form.answer(u"cat"_s);
        });
    }

    void hidingTheWordKeepsWhatIsTyped()
    {
        ask([](const AnswerForm &form) {
            form.type(u"ca"_s);
            form.click("cmdDown");
            QCOMPARE(form.box().text(), u"ca"_s);
            form.box().end(false);
            QTest::keyClicks(&form.box(), u"t"_s);
            form.press(Qt::Key_Return);
            QVERIFY(!form.form.isVisible());
        });
    }

    void theRightWordClosesIt_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("typed");
        QTest::newRow("exactly") << u"cat"_s << u"cat"_s;
        QTest::newRow("blanks round it") << u"cat"_s << u"  cat "_s;
        QTest::newRow("blanks round the stored word") << u" cat  "_s << u"cat"_s;
        QTest::newRow("blanks round both") << u" cat"_s << u"cat  "_s;
        QTest::newRow("phrase") << u"ice cream"_s << u"ice cream"_s;
        QTest::newRow("accents") << u"été"_s << u"été"_s;
        QTest::newRow("one letter") << u"a"_s << u"a"_s;
        QTest::newRow("no letters") << u""_s << u" "_s;
    }

    void theRightWordClosesIt()
    {
        QFETCH(QString, word);
        QFETCH(QString, typed);
        setEntry(word, {});
        ask([&](const AnswerForm &form) {
            form.type(typed);
            QCOMPARE(form.box().text(), typed);
            form.click("cmdOK");
            QVERIFY(!form.form.isVisible());
        });
    }

    void aWrongWordIsToldAndTheDialogStays_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("other letter case") << u"Cat"_s;
        QTest::newRow("capitals") << u"CAT"_s;
        QTest::newRow("nothing") << u""_s;
        QTest::newRow("blanks") << u"  "_s;
        QTest::newRow("part") << u"ca"_s;
        QTest::newRow("longer") << u"cats"_s;
        QTest::newRow("blank inside") << u"c at"_s;
        QTest::newRow("fixed blank behind") << u"cat\u00A0"_s;
        QTest::newRow("accent") << u"cát"_s;
    }

    void aWrongWordIsToldAndTheDialogStays()
    {
        QFETCH(QString, typed);
        for (const bool hidden : {false, true})
            ask([&](const AnswerForm &form) {
                if (hidden)
                    form.click("cmdDown");
                m_answers->expectMsgBox(
                    u"The correct word is: 'cat'"_s, QMessageBox::Ok,
                    [](QMessageBox &box) { QCOMPARE(box.standardButtons(), QMessageBox::Ok); });
                form.type(typed);
                form.button("cmdOK").setFocus();
                form.click("cmdOK");
                QVERIFY(form.form.isVisible());
                QCOMPARE(form.state(), hidden ? WordHidden : WordShown);
                QCOMPARE(form.box().text(), typed);
                QCOMPARE(form.form.focusWidget(), &form.box());
                form.answer(u"cat"_s);
            });
    }

    void theMessageShowsTheWordAsItIsStored()
    {
        setEntry(u" it's "_s, {});
        ask([this](const AnswerForm &form) {
            m_answers->expectMsgBox(u"The correct word is: ' it's '"_s);
            form.answer(u"its"_s);
            form.answer(u"it's"_s);
        });
    }

    void enterChecksTheWordWhileItIsHidden_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
    }

    void enterChecksTheWordWhileItIsHidden()
    {
        QFETCH(Qt::Key, key);
        ask([&](const AnswerForm &form) {
            form.click("cmdDown");
            m_answers->expectMsgBox(u"The correct word is: 'cat'"_s);
            form.type(u"dog"_s);
            form.press(key);
            QVERIFY(form.form.isVisible());
            form.type(u"cat"_s);
            form.press(key);
            QVERIFY(!form.form.isVisible());
        });
    }

    void enterDoesNotCheckTheWordWhileItIsInSight_data()
    {
        enterChecksTheWordWhileItIsHidden_data();
    }

    void enterDoesNotCheckTheWordWhileItIsInSight()
    {
        QFETCH(Qt::Key, key);
        ask([&](const AnswerForm &form) {
            for (const QString &typed : {u"cat"_s, u"dog"_s, QString()}) {
                form.type(typed);
                form.press(key);
                QVERIFY(form.form.isVisible());
                QCOMPARE(form.state(), WordShown);
            }
            // It is the same after the word was hidden and shown again.
            form.click("cmdDown");
            form.click("cmdUp");
            form.type(u"cat"_s);
            form.press(key);
            QVERIFY(form.form.isVisible());
            form.answer(u"cat"_s);
        });
    }

    void enterWithTheWordInSightMovesTheKeyboardToOK_data()
    {
        enterChecksTheWordWhileItIsHidden_data();
    }

    void enterWithTheWordInSightMovesTheKeyboardToOK()
    {
        QFETCH(Qt::Key, key);
        ask([&](const AnswerForm &form) {
            const QLabel &hint = form.label("lblTypingHint");
            QCOMPARE(hint.text(), QString());
            form.press(key);
            QCOMPARE(form.form.focusWidget(), &form.button("cmdOK"));
            QCOMPARE(hint.text(), u"Press Enter again for OK."_s);
            QVERIFY(hint.isVisible());
            QCOMPARE(form.state(), WordShown);
            // What is typed then goes into the box.
            for (const char letter : QByteArray("Cat"))
                QTest::keyClick(form.form.focusWidget(), letter);
            QCOMPARE(form.box().text(), u"Cat"_s);
            QCOMPARE(form.form.focusWidget(), &form.box());
            QCOMPARE(hint.text(), QString());
            m_answers->expectMsgBox(u"The correct word is: 'cat'"_s);
            form.press(key);
            form.press(key);
            QVERIFY(m_answers->allSeen());
            QCOMPARE(form.form.focusWidget(), &form.box());
            QCOMPARE(hint.text(), QString());
            form.type(u"cat"_s);
            form.press(key);
            form.press(key);
            QVERIFY(!form.form.isVisible());
        });
    }

    void nobodyIsStuckWithoutAKeyForALetter()
    {
        setEntry(u"été"_s, {});
        ask([this](const AnswerForm &form) {
            m_answers->expectMsgBox(u"The correct word is: 'été'"_s);
            form.answer(u"ete"_s);
            QVERIFY(m_answers->allSeen());
            QCOMPARE(form.label("lblTypingHint").text(),
                     u"For letters without a key, type blanks."_s);
            form.answer(u" t "_s);
            QVERIFY(!form.form.isVisible());
        });
    }

    void theHintGoesWhenTheKeyboardLeavesOK()
    {
        ask([](const AnswerForm &form) {
            form.press(Qt::Key_Return);
            form.press(Qt::Key_Backtab, Qt::ShiftModifier);
            QCOMPARE(form.form.focusWidget(), &form.button("cmdDown"));
            QCOMPARE(form.label("lblTypingHint").text(), QString());
            // A key with Ctrl or Alt types nothing.
            form.press(Qt::Key_Tab);
            form.press(Qt::Key_B, Qt::ControlModifier);
            QCOMPARE(form.form.focusWidget(), &form.button("cmdOK"));
            QCOMPARE(form.box().text(), QString());
            form.answer(u"cat"_s);
        });
    }

    void theFrameHasNoCloseBox()
    {
        ask([](const AnswerForm &form) {
            QVERIFY(!form.form.windowFlags().testFlag(Qt::WindowCloseButtonHint));
            QVERIFY(form.form.windowFlags().testFlag(Qt::WindowTitleHint));
            form.answer(u"cat"_s);
        });
    }

    void enterPressesTheButtonThatHasTheKeyboard()
    {
        ask([](const AnswerForm &form) {
            form.type(u"cat"_s);
            form.button("cmdDown").setFocus();
            form.press(Qt::Key_Return);
            QCOMPARE(form.state(), WordHidden);
            form.button("cmdUp").setFocus();
            form.press(Qt::Key_Return);
            QCOMPARE(form.state(), WordShown);
            form.button("cmdOK").setFocus();
            form.press(Qt::Key_Return);
            QVERIFY(!form.form.isVisible());
        });
    }

    void escAndTheCloseBoxDoNothing_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::addColumn<bool>("hidden");
        QTest::newRow("Esc, word in sight") << true << false;
        QTest::newRow("Esc, word hidden") << true << true;
        QTest::newRow("close box, word in sight") << false << false;
        QTest::newRow("close box, word hidden") << false << true;
    }

    void escAndTheCloseBoxDoNothing()
    {
        QFETCH(bool, byKey);
        QFETCH(bool, hidden);
        ask([&](const AnswerForm &form) {
            const auto leave = [&] {
                if (byKey)
                    form.press(Qt::Key_Escape);
                else
                    form.form.close();
            };
            if (hidden)
                form.click("cmdDown");
            leave();
            QVERIFY(form.form.isVisible());
            // A word that is typed but not checked does not close the dialog.
            form.type(u"cat"_s);
            leave();
            QVERIFY(form.form.isVisible());
            m_answers->expectMsgBox(u"The correct word is: 'cat'"_s);
            form.answer(u"dog"_s);
            leave();
            QVERIFY(form.form.isVisible());
            QCOMPARE(form.state(), hidden ? WordHidden : WordShown);
            QCOMPARE(form.box().text(), u"dog"_s);
            form.answer(u"cat"_s);
        });
    }

    void itWorksByKeyboardAlone()
    {
        ask([](const AnswerForm &form) {
            QStringList reached;
            for (int i = 0; i < 3; ++i) {
                reached << form.form.focusWidget()->objectName();
                form.press(Qt::Key_Tab);
            }
            QCOMPARE(reached, (QStringList{u"txtUserAnswer"_s, u"cmdDown"_s, u"cmdOK"_s}));
            QCOMPARE(form.form.focusWidget(), &form.box());
            form.button("cmdOK").setFocus();
            form.press(Qt::Key_H, Qt::AltModifier);
            QTRY_COMPARE(form.state(), WordHidden);
            QCOMPARE(form.form.focusWidget(), &form.box());
            form.button("cmdOK").setFocus();
            form.press(Qt::Key_S, Qt::AltModifier);
            QTRY_COMPARE(form.state(), WordShown);
            QCOMPARE(form.form.focusWidget(), &form.box());
            form.type(u"cat"_s);
            form.press(Qt::Key_O, Qt::AltModifier);
            QTRY_VERIFY(!form.form.isVisible());
        });
    }

    void theWordHasToBeTyped()
    {
        ask([](const AnswerForm &form) {
            const QLabel &word = form.label("lblAnswerIs");
            QCOMPARE(word.actions(), QList<QAction *>());
            QCOMPARE(word.toolTip(), QString());
            QCOMPARE(word.textInteractionFlags() & Qt::TextSelectableByMouse, 0);
            form.answer(u"cat"_s);
        });
    }

    void whatNoKeyGivesIsTypedAsABlank_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("tab") << u"ice\tcream"_s;
        QTest::newRow("line break") << u"ice\r\ncream"_s;
        QTest::newRow("fixed blank") << u"ice\u00A0cream"_s;
        QTest::newRow("soft hyphen") << u"ice\u00ADcream"_s;
    }

    void whatNoKeyGivesIsTypedAsABlank()
    {
        QFETCH(QString, word);
        setEntry(word, {});
        ask([](const AnswerForm &form) {
            form.answer(u"ice cream"_s);
            QVERIFY(!form.form.isVisible());
        });
    }

    void textsAreShownAsTheyAre()
    {
        setEntry(u"<b>R&D</b>"_s, u"<i>a</i> & b\r\nc"_s);
        ask([](const AnswerForm &form) {
            QCOMPARE(form.label("lblAnswerIs").text(), u"The correct answer is: <b>R&D</b>"_s);
            QCOMPARE(form.label("lblAnswerIs").textFormat(), Qt::PlainText);
            QCOMPARE(form.label("lblDefinition").text(), u"<i>a</i> & b\r\nc"_s);
            form.answer(u"<b>R&D</b>"_s);
        });
    }

    void usualTextsAreWhole_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("definition");
        QTest::newRow("short") << u"cat"_s << u"a small animal"_s;
        QTest::newRow("100 characters") << u"cat"_s << u"a small cat"_s.repeated(9) + u"."_s;
        QTest::newRow("600 characters") << u"cat"_s << u"a small animal "_s.repeated(40);
        QTest::newRow("45 letters") << u"pneumonoultramicroscopicsilicovolcanoconiosis"_s
                                    << u"a disease of the lung "_s.repeated(15);
        QTest::newRow("58 letters")
            << u"Llanfairpwllgwyngyllgogerychwyrndrobwllllantysiliogogogoch and more"_s
            << u"a village"_s;
        QTest::newRow("no definition") << u"cat"_s << QString();
    }

    void usualTextsAreWhole()
    {
        QFETCH(QString, word);
        QFETCH(QString, definition);
        setEntry(word, definition);
        ask([&](const AnswerForm &form) {
            for (const char *name : {"answerArea", "definitionArea"}) {
                const QScrollArea &area = Controls::find<QScrollArea>(form.form, name);
                QCOMPARE(area.verticalScrollBar()->maximum(), 0);
                QVERIFY(area.viewport()->height() >=
                        area.widget()->heightForWidth(area.viewport()->width()));
            }
            form.answer(word);
        });
    }

    void longTextsLeaveTheControlsInSight_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("definition");
        QTest::newRow("long definition") << u"cat"_s << u"a small animal "_s.repeated(400);
        QTest::newRow("endless definition") << u"cat"_s << QString(5000, u'm');
        QTest::newRow("45 letters")
            << u"pneumonoultramicroscopicsilicovolcanoconiosis"_s << u"a disease"_s;
        QTest::newRow("long phrase")
            << u"a rather long phrase "_s.repeated(10).trimmed() << u"x"_s.repeated(300);
        QTest::newRow("endless word") << QString(200, u'm') << u"long"_s;
        QTest::newRow("2000 letters") << QString(2000, u'm') << QString(5000, u'm');
    }

    void longTextsLeaveTheControlsInSight()
    {
        QFETCH(QString, word);
        QFETCH(QString, definition);
        setEntry(word, definition);
        ask([&](const AnswerForm &form) {
            const QRect inside = form.form.rect();
            QVERIFY(form.form.width() <= form.form.screen()->availableSize().width());
            QVERIFY(form.form.height() <= form.form.screen()->availableSize().height());
            for (const char *name : {"answerArea", "txtUserAnswer", "cmdOK", "cmdDown"}) {
                const QWidget &control = Controls::find<QWidget>(form.form, name);
                const QRect place(control.mapTo(&form.form, QPoint()), control.size());
                QVERIFY2(inside.contains(place), name);
            }
            // A long text can be scrolled to its end, also by keyboard.
            for (const char *name : {"answerArea", "definitionArea"}) {
                const QScrollArea &area = Controls::find<QScrollArea>(form.form, name);
                const QWidget &label = *area.widget();
                QVERIFY(label.width() <= area.viewport()->width());
                const int hidden = area.verticalScrollBar()->maximum();
                QVERIFY(hidden + area.viewport()->height() >= label.heightForWidth(label.width()));
                QCOMPARE(area.focusPolicy(), hidden > 0 ? Qt::TabFocus : Qt::NoFocus);
            }
            form.box().setText(word);
            form.click("cmdOK");
        });
    }

private:
    static void setEntry(const QString &word, const QString &definition)
    {
        gVocabList().ClearList();
        gVocabList().AddVocab(word, definition, u"A sentence."_s);
        gVocabList().CurrentWord(1);
    }

    // Opens the dialog and calls `use`, which must enter the word.
    void ask(const std::function<void(const AnswerForm &)> &use)
    {
        m_answers->useForm("dlgIncorrectAnswer", [use](QDialog &dialog) {
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            use(AnswerForm(dialog));
        });
        QWidget window;
        dlgIncorrectAnswer(window).exec();
    }

    std::unique_ptr<FreshState> m_state;
    std::unique_ptr<DialogAnswers> m_answers;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgIncorrectAnswer_test>(argc, argv);
}

#include "dlgIncorrectAnswer_test.moc"
