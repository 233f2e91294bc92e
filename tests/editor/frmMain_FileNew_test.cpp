// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorModes.h"
#include "editor/OpenList.h"
#include "editor/ShownPage.h"
#include "support/FormTest.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_FileNew_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        m_path = m_main->path(u"animals.lwx"_s);
        writeFile(m_path, listBytes(m_entries));
        openList(*m_main, m_path);
        QCOMPARE(openEntries(), m_entries);
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void cancelKeepsTheLesson()
    {
        const OpenList before(*m_main);
        answer(EndLesson, QMessageBox::Cancel, QMessageBox::Ok | QMessageBox::Cancel);
        m_main->choose("mnuNew");
        QVERIFY(OpenList(*m_main) == before);
    }

    void anUnchangedListGoesWithoutAQuestionAboutSaving()
    {
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->choose("mnuNew");
        QCOMPARE(gVocabList().NumWords().toInt(), 0);
        QCOMPARE(readFile(m_path), listBytes(m_entries));
    }

    void cancelAtTheQuestionAboutSavingKeepsListAndTitle()
    {
        addEntry(*m_main, u"cow"_s);
        const OpenList before(*m_main);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        answer(SaveChanges, QMessageBox::Cancel,
               QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        m_main->choose("mnuNew");
        QVERIFY(OpenList(*m_main) == before);
        QCOMPARE(readFile(m_path), listBytes(m_entries));
    }

    void escAtTheQuestionAboutSavingMeansCancel()
    {
        addEntry(*m_main, u"cow"_s);
        const OpenList before(*m_main);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.escapeMsgBox(SaveChanges);
        m_main->choose("mnuNew");
        QVERIFY(OpenList(*m_main) == before);
    }

    void noGivesTheChangesUp()
    {
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->choose("mnuNew");
        QCOMPARE(gVocabList().NumWords().toInt(), 0);
        QVERIFY(!gChanged);
        QCOMPARE(readFile(m_path), listBytes(m_entries));
    }

    void yesSavesFirst()
    {
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        m_main->answers.expectMsgBox(m_path + u" has been saved."_s);
        m_main->choose("mnuNew");
        QCOMPARE(gVocabList().NumWords().toInt(), 0);
        QCOMPARE(readFile(m_path), listBytes(m_entries + Entries{addedEntry(u"cow"_s)}));
    }

    void yesForAnUntitledListAsksForItsName()
    {
        startUntitledList();
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        m_main->answers.chooseFile(m_main->path(u"second.lwx"_s));
        m_main->choose("mnuNew");
        QCOMPARE(gVocabList().NumWords().toInt(), 0);
        QCOMPARE(gFileName, QString());
        QCOMPARE(readFile(m_main->path(u"second.lwx"_s)), listBytes({addedEntry(u"cow"_s)}));
    }

    void aCancelledSaveAsKeepsTheListAlsoAfterAnEarlierSave()
    {
        startUntitledList();
        gSaved = true; // as the save of an earlier list left it
        const OpenList before(*m_main);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuNew");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
        QVERIFY(!gSaved);
    }

    void aSaveThatFailsKeepsTheList()
    {
        addEntry(*m_main, u"cow"_s);
        QVERIFY(QFile::remove(m_path));
        QVERIFY(QDir().mkdir(m_path));
        const OpenList before(*m_main);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        m_main->answers.expectAnyMsgBox(QMessageBox::Ok, [](QMessageBox &box) {
            QVERIFY2(box.text().startsWith(u"Run-time error '75':\n\nPath/File access error\n"_s),
                     qPrintable(box.text()));
        });
        m_main->choose("mnuNew");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
    }

    void theNewListIsUntitledAndEmptyAndReadyForAWord()
    {
        m_main->fill(40);
        m_main->bar().setValue(12);
        m_main->clickCell(3, 2);
        QVERIFY(!m_main->markedRows().isEmpty());
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->choose("mnuNew");

        QCOMPARE(gVocabList().NumWords().toInt(), 0);
        QCOMPARE(gFileName, QString());
        QCOMPARE(gFileTitle, QString());
        QCOMPARE(gOpenedFile, QString());
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"(Untitled)"_s);
        QVERIFY(gNewWord);
        QVERIFY(!gWordSelected);
        QVERIFY(!gChanged);
        QCOMPARE(gLastItem.toInt(), 1);
        QCOMPARE(gHighlightRow.toInt(), 0);
        compareEmptyPage(*m_main);

        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
            QCOMPARE(m_main->text(box), QString());
        QCOMPARE(m_main->window().focusWidget(), &m_main->control<QWidget>("txtWord"));
        QCOMPARE(m_main->look(),
                 EditorModes::look({u"cmdNewWord: &New Word enabled"_s, u"cmdAdd: hidden"_s,
                                    u"cmdAbort: A&bort enabled"_s, u"cmdDelete: &Delete disabled"_s,
                                    u"cmdSearch: &Search disabled"_s},
                                   EditorModes::Boxes::Enabled));
    }

    void newLeavesSaveAsItIs_data()
    {
        QTest::addColumn<bool>("changed");
        QTest::newRow("after a change that is not saved") << true;
        QTest::newRow("without a change") << false;
    }

    void newLeavesSaveAsItIs()
    {
        QFETCH(bool, changed);
        if (changed)
            addEntry(*m_main, u"cow"_s);
        QCOMPARE(m_main->action("mnuSave").isEnabled(), changed);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        if (changed)
            m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->choose("mnuNew");
        QCOMPARE(m_main->action("mnuSave").isEnabled(), changed);
    }

    void abortEndsTheNewListsFirstWord()
    {
        startNewList();
        m_main->type("txtWord", u"cat"_s);
        m_main->click("cmdAbort");
        QCOMPARE(m_main->look(), EditorModes::idle());
        QCOMPARE(m_main->text("txtWord"), QString());
        m_main->click("cmdNewWord");
        QCOMPARE(m_main->look(), EditorModes::newWord());
        QCOMPARE(m_main->markedRows(), QList<int>{1});
    }

    void enterAddsTheWordThatIsTypedIntoTheNewList_data()
    {
        QTest::addColumn<Qt::Key>("key");
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"}) {
            QTest::addRow("%s Return", box) << Qt::Key_Return;
            QTest::addRow("%s Enter", box) << Qt::Key_Enter;
        }
    }

    void enterAddsTheWordThatIsTypedIntoTheNewList()
    {
        QFETCH(Qt::Key, key);
        startNewList();
        m_main->typeEntry(u" cat "_s, u"animal"_s, u"The cat."_s);
        const QByteArray box = QByteArray(QTest::currentDataTag()).split(' ').constFirst();
        m_main->control<QWidget>(box).setFocus();
        Controls::press(key);
        const Entries cat{{u" cat "_s, u"animal"_s, u"The cat."_s}};
        QCOMPARE(openEntries(), cat);
        QVERIFY(gChanged);
        QVERIFY(m_main->action("mnuSave").isEnabled());
        QCOMPARE(m_main->row(1), QStringList{u"1"_s} + cat.constFirst());
        checkReadyForTheNextWord(2);

        m_main->type("txtWord", u"dog"_s);
        Controls::press(key);
        QCOMPARE(openEntries(), cat + typedWord(u"dog"_s));
        checkReadyForTheNextWord(3);
    }

    void enterWithoutAWordAddsNothingToTheNewList()
    {
        startNewList();
        m_main->type("txtDefinition", u"animal"_s);
        Controls::press(Qt::Key_Return);
        QCOMPARE(gVocabList().NumWords().toInt(), 0);
        QVERIFY(!gChanged);
        QCOMPARE(m_main->text("txtDefinition"), u"animal"_s);
        QCOMPARE(m_main->window().focusWidget(), &m_main->control<QWidget>("txtWord"));
    }

    void newWordKeepsWhatIsTypedIntoTheNewList()
    {
        startNewList();
        m_main->typeEntry(u"cat"_s, u"animal"_s, u"The cat."_s);
        m_main->click("cmdNewWord");
        QCOMPARE(m_main->look(), EditorModes::newWord());
        QCOMPARE(m_main->text("txtWord"), u"cat"_s);
        QCOMPARE(m_main->text("txtDefinition"), u"animal"_s);
        QCOMPARE(m_main->text("txtSentence"), u"The cat."_s);
        m_main->click("cmdAdd");
        QCOMPARE(openEntries().size(), 1);
        // From then on New Word empties the boxes again.
        m_main->click("cmdAbort");
        m_main->click("cmdNewWord");
        QCOMPARE(m_main->text("txtWord"), QString());
    }

    void anImportIntoTheNewListKeepsWhatIsTyped()
    {
        startNewList();
        m_main->type("txtWord", u"cat"_s);
        m_main->answers.chooseFile(m_path);
        m_main->answers.expectMsgBox(u"5 words imported"_s);
        m_main->choose("mnuImport");
        QTest::keyClick(&m_main->control<QWidget>("txtWord"), Qt::Key_Return);
        QCOMPARE(openEntries(), m_entries + typedWord(u"cat"_s));
        checkReadyForTheNextWord(7);
    }

    void theNewListAsksForANameWhenItIsSaved()
    {
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->choose("mnuNew");
        addEntry(*m_main, u"cow"_s);
        m_main->answers.cancelFileDialog([](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Save File As"_s);
            QCOMPARE(Controls::find<QLineEdit>(dialog, "fileNameEdit").text(), u"words.lwx"_s);
        });
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_path), listBytes(m_entries));
    }

    void afterNewTheFormerFileIsReadAgain()
    {
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->choose("mnuNew");
        openList(*m_main, m_path);
        QCOMPARE(openEntries(), m_entries);
    }

private:
    // Expects a question with exactly these buttons.
    void answer(const QString &text, QMessageBox::StandardButton button,
                QMessageBox::StandardButtons buttons)
    {
        m_main->answers.expectMsgBox(text, button, [buttons](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), buttons);
        });
    }

    static Entries typedWord(const QString &word) { return {{word, QString(), QString()}}; }

    void startNewList()
    {
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->choose("mnuNew");
        // Keys need the active window, which the question has just been.
        m_main->window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_main->window()));
    }

    void checkReadyForTheNextWord(int row)
    {
        QCOMPARE(m_main->look(), EditorModes::newWord());
        QVERIFY(gNewWord);
        QCOMPARE(m_main->text("txtWord"), QString());
        QCOMPARE(m_main->window().focusWidget(), &m_main->control<QWidget>("txtWord"));
        QCOMPARE(m_main->markedRows(), QList<int>{row});
    }

    void startUntitledList()
    {
        startNewList();
        addEntry(*m_main, u"cow"_s);
    }

    const Entries m_entries = someEntries(5, u"animal"_s);
    QString m_path;
    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_FileNew_test>(argc, argv);
}

#include "frmMain_FileNew_test.moc"
