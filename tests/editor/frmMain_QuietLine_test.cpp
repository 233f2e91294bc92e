// SPDX-License-Identifier: GPL-3.0-or-later
// The quiet line beside the word box, and what an empty list shows.
#include "editor/ImportCommand.h"
#include "editor/OpenList.h"
#include "platform/OneLineBox.h"
#include "platform/QuietLabel.h"
#include "support/FormTest.h"

#include <QAccessible>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_QuietLine_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        m_list = m_main->path(u"animals.lwx"_s);
        writeFile(m_list, listBytes(someEntries(3, u"glacier"_s)));
        QCOMPARE(line(), u"No words"_s);
    }

    void cleanup()
    {
        QVERIFY(!m_main || m_main->answers.allSeen());
        gChanged = false;
        m_main.reset();
    }

    void theStateOfTheListIsShown()
    {
        openList(*m_main, m_list);
        QCOMPARE(line(), u"3 words · Save writes animals.lwx"_s);
        addWord(u"moraine"_s);
        QCOMPARE(line(), u"4 words · not saved · Save writes animals.lwx"_s);
        QCOMPARE(marked(), QString());
        m_main->answers.expectMsgBox(m_list + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(line(), u"4 words · Save writes animals.lwx"_s);
    }

    void afterAnExportTheOtherFileIsMarked()
    {
        openList(*m_main, m_list);
        const QString target = m_main->path(u"other.lwx"_s);
        m_main->answers.useForm("dlgExport", [&](QDialog &dialog) {
            for (const char *box : {"txtStart", "txtEnd"})
                Controls::type(Controls::find<QLineEdit>(dialog, box), u"1"_s);
            Controls::type(Controls::find<QLineEdit>(dialog, "txtFilename"), target);
            m_main->answers.expectMsgBox(u"1 words has been added to "_s + target);
            Controls::click(Controls::find<QPushButton>(dialog, "cmdOk"));
        });
        m_main->choose("mnuExport");
        const QString folder = QFileInfo(target).dir().dirName();
        QCOMPARE(line(), u"3 words · Save writes other.lwx in "_s + folder);
        QCOMPARE(marked(), u"Save writes other.lwx in "_s + folder);
    }

    void afterACancelledOpenSaveAsksForAName()
    {
        openList(*m_main, m_list);
        m_main->answers.expectMsgBox(EndLesson);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuOpen");
        QCOMPARE(marked(), u"Save asks for a name"_s);
    }

    void aWordThatIsThereAlreadyIsShownWhileItIsTyped()
    {
        openList(*m_main, m_list);
        m_main->click("cmdNewWord");
        m_main->type("txtWord", u"Glacier 2"_s);
        QCOMPARE(line(), u"In the list: 2 glacier 2 - definition 2 of glacier"_s);
        m_main->type("txtWord", u"Glacier 23"_s);
        QCOMPARE(line(), u"3 words · Save writes animals.lwx"_s);
    }

    void anEntryThatIsChangedIsNotFoundItself()
    {
        openList(*m_main, m_list);
        m_main->clickCell(2, 1);
        QCOMPARE(line(), u"3 words · Save writes animals.lwx"_s);
        m_main->type("txtWord", u"glacier 3"_s);
        QCOMPARE(line(), u"In the list: 3 glacier 3 - definition 3 of glacier"_s);
    }

    void hitsAreCounted()
    {
        writeFile(m_list, listBytes(someEntries(2, u"a"_s) + someEntries(2, u"a"_s)));
        openList(*m_main, m_list);
        m_main->click("cmdSearch");
        m_main->type("txtWord", u"a 2"_s);
        m_main->click("cmdSearch");
        QCOMPARE(line(), u"1 of 2 found. Click its row to change it."_s);
        m_main->click("cmdSearch");
        QCOMPARE(line(), u"2 of 2 found. Click its row to change it."_s);
        put("txtWord", u"b"_s);
        QCOMPARE(line(), u"4 words · Save writes animals.lwx"_s);
        put("txtWord", u"ł"_s);
        QCOMPARE(line(), u"4 words · Save writes animals.lwx"_s);
        m_main->answers.expectMsgBox(u"ł is not in the list."_s);
        m_main->click("cmdSearch");
        QCOMPARE(line(), u"4 words · Save writes animals.lwx"_s);
        m_main->click("cmdAbort");
        QCOMPARE(line(), u"4 words · Save writes animals.lwx"_s);
    }

    void lostCharactersAreNamedInAllBoxes_data()
    {
        QTest::addColumn<QByteArray>("box");
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
            QTest::newRow(box) << QByteArray(box);
    }

    void lostCharactersAreNamedInAllBoxes()
    {
        QFETCH(QByteArray, box);
        m_main->click("cmdNewWord");
        put(box, u"łódź"_s);
        QCOMPARE(line(), u"This list cannot keep: ł, ź"_s);
        put(box, u"lodz"_s);
        QCOMPARE(line(), u"No words"_s);
    }

    void theWordsLostCharactersAreUnderlined()
    {
        const auto &box = m_main->control<OneLineBox>("txtWord");
        m_main->click("cmdNewWord");
        put("txtWord", u"łódź"_s);
        QCOMPARE(box.marks().size(), 2);
        m_main->click("cmdAbort");
        openList(*m_main, m_list);
        m_main->click("cmdSearch"); // a word to look for goes into no file
        put("txtWord", u"łódź"_s);
        QCOMPARE(box.marks().size(), 0);
    }

    void anImportAndATextFileAreReportedUntilThereIsSomethingNewer()
    {
        m_main.reset();
        ImportCommand command;
        const auto &label = Controls::find<QuietLabel>(command.main.window(), "lblQuiet");
        command.expectMsgBox(u"2 words imported"_s);
        command.importList({u"cat"_s, u"cow"_s});
        QCOMPARE(label.text(), u"2 words added."_s);
        command.main.click("cmdNewWord");
        QVERIFY(label.text().startsWith(u"2 words · "_s));
        command.main.type("txtWord", u"cat"_s);
        QVERIFY(label.text().startsWith(u"In the list: 1 cat"_s));
        command.main.click("cmdAbort");
        QVERIFY(label.text().startsWith(u"2 words"_s) && !label.text().contains(u"added"_s));
        command.main.answers.chooseFile(command.main.path(u"words.txt"_s));
        command.main.choose("mnuCreateTextFile");
        QCOMPARE(label.text(), u"Written to words.txt."_s);
        command.import(u"in.between/words.lwx"_s, ImportTools::listFile({u"dog"_s}));
        QCOMPARE(label.text(),
                 u"Nothing imported: the path may have one dot only, before lwx or dif."_s);
        command.main.answers.cancelFileDialog();
        command.main.choose("mnuImport");
        QVERIFY(label.text().startsWith(u"2 words · "_s));
        gChanged = false;
        QVERIFY(command.main.answers.allSeen());
    }

    // An import gives its file's name to the reader of lists.
    void duringAnImportTheLineDoesNotNameItsFile()
    {
        m_main.reset();
        ImportCommand command;
        const auto &label = Controls::find<QuietLabel>(command.main.window(), "lblQuiet");
        gVocabList().AddVocab(u"cat"_s, {}, {});
        command.expectQuestion(u"cmdNo"_s, [&](QDialog &dialog) {
            Controls::click(Controls::find<QPushButton>(dialog, "cmdFindNext"));
            QVERIFY2(!label.text().contains(u"words.lwx"_s), qPrintable(label.text()));
        });
        command.expectMsgBox(u"Search ended. No more words found."_s);
        command.expectMsgBox(u"0 words imported"_s);
        command.importList({u"cat"_s});
        QVERIFY(command.main.answers.allSeen());
    }

    // The message counts the words of the file.
    void anImportIntoAFullListSaysWhatCameIn()
    {
        m_main.reset();
        ImportCommand command;
        for (int i = 1; i < cVocabList::MaxWords; ++i)
            gVocabList().AddVocab(u"old"_s, {}, {});
        for (int i = 0; i < 2; ++i)
            command.expectMsgBox(u"Cannot add any more words. Maximum number of words= 32000"_s);
        command.expectMsgBox(u"3 words added"_s);
        command.importDif(ImportTools::difLinesOf({u"cat|a"_s, u"cow|b"_s, u"dog|c"_s}));
        QCOMPARE(Controls::find<QuietLabel>(command.main.window(), "lblQuiet").text(),
                 u"1 word added, 2 not added: the list is full."_s);
        gChanged = false;
        QVERIFY(command.main.answers.allSeen());
    }

    void screenReadersReadAStatusBar()
    {
        const QAccessibleInterface *label = QAccessible::queryAccessibleInterface(&quiet());
        QCOMPARE(label->role(), QAccessible::StatusBar);
        m_main->click("cmdNewWord");
        put("txtWord", u"ł"_s);
        put("txtWord", u"łó"_s);
        put("txtWord", u"łóź"_s);
        QVERIFY(label->text(QAccessible::Name) != u"This list cannot keep: ł, ź"_s);
        QTRY_COMPARE(label->text(QAccessible::Name), u"This list cannot keep: ł, ź"_s);
    }

    void theHintOfAnEmptyListGoesWithTheFirstEntry()
    {
        const auto &hint = m_main->control<QLabel>("lblEmptyList");
        QVERIFY(hint.isVisible());
        QVERIFY(m_main->grid().viewport()->rect().contains(hint.geometry()));
        QVERIFY(hint.sizeHint().boundedTo(hint.size()) == hint.sizeHint());
        addWord(u"cat"_s);
        QVERIFY(!hint.isVisible());
        m_main->answers.expectMsgBox(EndLesson);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->choose("mnuNew");
        QVERIFY(hint.isVisible());
        openList(*m_main, m_list);
        QVERIFY(!hint.isVisible());
    }

    void theHintTakesNoClick()
    {
        const auto &hint = m_main->control<QLabel>("lblEmptyList");
        QWidget *viewport = m_main->grid().viewport();
        QCOMPARE(viewport->childAt(hint.geometry().center()), nullptr);
        QCOMPARE(hint.focusPolicy(), Qt::NoFocus);
    }

private:
    [[nodiscard]] QuietLabel &quiet() { return m_main->control<QuietLabel>("lblQuiet"); }
    [[nodiscard]] QString line() { return quiet().text(); }
    [[nodiscard]] QString marked() { return quiet().markedText(); }

    // QTest types Latin-1 characters only.
    void put(const char *box, const QString &text)
    {
        auto &widget = m_main->control<QWidget>(box);
        widget.setFocus();
        QInputMethodEvent event;
        event.setCommitString(text);
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }

    void addWord(const QString &word)
    {
        m_main->click("cmdNewWord");
        m_main->typeEntry(word);
        m_main->click("cmdAdd");
        m_main->click("cmdAbort");
    }

    std::unique_ptr<MainWindow> m_main;
    QString m_list;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_QuietLine_test>(argc, argv);
}

#include "frmMain_QuietLine_test.moc"
