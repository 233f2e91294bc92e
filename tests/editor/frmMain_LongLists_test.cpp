// SPDX-License-Identifier: GPL-3.0-or-later
// Lists longer than the editor makes them, up to the most that a file can hold. Where a row
// or a position does not fit into 16 bits, a command ends with error 6 and loses nothing.
#include "editor/EditorModes.h"
#include "editor/OpenList.h"
#include "support/FormTest.h"

#include <algorithm>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString Overflow = u"Run-time error '6':\n\nOverflow"_s;

QByteArray longList(int count)
{
    return listBytes(someEntries(count, u"w"_s));
}

QStringList rowOf(int position)
{
    const QString number = QString::number(position);
    return {number, u"w "_s + number, u"definition %1 of w"_s.arg(number),
            u"sentence %1 of w"_s.arg(number)};
}

} // namespace

class frmMain_LongLists_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        m_path = m_main->path(u"long.lwx"_s);
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void theListIsLoadedWholeAndSavedWithTheSameBytes_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {32001, 32744, 32745, 32766, 32767})
            QTest::addRow("%d", count) << count;
    }

    void theListIsLoadedWholeAndSavedWithTheSameBytes()
    {
        QFETCH(int, count);
        m_main->fill(5);
        m_main->clickCell(2, 1); // an entry of the list before
        const QByteArray bytes = open(count);
        QCOMPARE(gVocabList().NumWords().toInt(), count);
        QCOMPARE(openEntries(), someEntries(count, u"w"_s));
        QCOMPARE(gFileName, m_path);
        QCOMPARE(gOpenedFile, m_path);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"long.lwx"_s);
        QVERIFY(!gChanged);
        QVERIFY(!m_main->action("mnuSave").isEnabled());
        QCOMPARE(m_main->look(), EditorModes::idle());
        QCOMPARE(m_main->text("txtWord"), QString());
        QCOMPARE(m_main->markedRows(), QList<int>());
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
        for (int row = 1; row <= 23; ++row)
            QCOMPARE(m_main->row(row), count < Integer::Max ? rowOf(row) : EditorModes::emptyRow());

        const QString copy = m_main->path(u"copy.lwx"_s);
        m_main->answers.chooseFile(copy);
        m_main->choose("mnuSaveAs");
        QCOMPARE(readFile(copy), bytes);
    }

    void eachCommandThatShowsAPageOfTheLongestListEndsInError6()
    {
        open(Integer::Max);
        expectOverflow();
        m_main->click("cmdNewWord");
        m_main->type("txtWord", u"one more"_s);
        m_main->answers.expectMsgBox(
            u"Cannot add any more words. Maximum number of words= 32000"_s);
        m_main->click("cmdAdd");
        m_main->click("cmdAbort");

        m_main->click("cmdSearch");
        for (const int hit : {32767, 32767, 5}) {
            m_main->type("txtWord", u"w %1"_s.arg(hit));
            expectOverflow();
            m_main->click("cmdSearch");
            QCOMPARE(gVocabList().CurrentWord().toInt(), hit);
        }
        m_main->click("cmdAbort");

        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End}) {
            expectOverflow();
            QTest::keyClick(&m_main->grid(), key);
        }
        expectOverflow();
        m_main->bar().setValue(m_main->bar().value() == 0 ? 1 : 0);
        verifyNothingIsLost(Integer::Max);
    }

    void anImportIntoAListBeyondTheLimitIsRefused_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("32001") << 32001;
        QTest::newRow("the longest list") << int(Integer::Max);
    }

    void anImportIntoAListBeyondTheLimitIsRefused()
    {
        QFETCH(int, count);
        open(count);
        const QString words = m_main->path(u"words.lwx"_s);
        writeFile(words, listBytes(someEntries(1, u"cat"_s)));
        m_main->answers.chooseFile(words);
        m_main->answers.expectMsgBox(
            u"Cannot import any more words. Maximum number of words=32000"_s);
        if (count == Integer::Max)
            expectOverflow();
        m_main->choose("mnuImport");
        QCOMPARE(gFileName, m_path);
        verifyNothingIsLost(count);
    }

    void theLongestListBecomesATextFile()
    {
        open(Integer::Max);
        const QString text = m_main->path(u"long.txt"_s);
        m_main->answers.chooseFile(text);
        m_main->choose("mnuCreateTextFile");
        const QByteArray bytes = readFile(text);
        QCOMPARE(bytes.count('\n'), Integer::Max);
        QVERIFY(bytes.endsWith("w 32767\tdefinition 32767 of w\tsentence 32767 of w\r\n"));
        verifyNothingIsLost(Integer::Max);
    }

    void theDialogsOpenWithTheLongestList_data()
    {
        QTest::addColumn<QByteArray>("menuItem");
        QTest::newRow("dlgQuickFlash") << "mnuQuickFlash"_ba;
        QTest::newRow("dlgExport") << "mnuExport"_ba;
        QTest::newRow("frmPrint") << "mnuPrint"_ba;
    }

    void theDialogsOpenWithTheLongestList()
    {
        QFETCH(QByteArray, menuItem);
        open(Integer::Max);
        m_main->answers.useForm(QTest::currentDataTag(), [](QDialog &dialog) { dialog.close(); });
        m_main->choose(menuItem.constData());
        verifyNothingIsLost(Integer::Max);
    }

    void theGameOpensWithTheLongestList()
    {
        open(Integer::Max);
        m_main->choose("mnuPlayScramble");
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto game = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
            return window->objectName() == u"frmTanglewit"_s && window->isVisible();
        });
        QVERIFY(game != windows.end());
        QCOMPARE(gOrderSize.toInt(), 1000);
        (*game)->close();
        QVERIFY(m_main->window().isVisible());
        verifyNothingIsLost(Integer::Max);
    }

    void endShowsTheLastFullPageOfTheLongestListThatHasPages()
    {
        open(32766);
        QTest::keyClick(&m_main->grid(), Qt::Key_End);
        for (int row = 1; row <= 23; ++row)
            QCOMPARE(m_main->row(row), rowOf(32743 + row));
        QTest::keyClick(&m_main->grid(), Qt::Key_Space);
        QCOMPARE(m_main->text("txtWord"), u"w 32766"_s);
        m_main->type("txtDefinition", u"changed"_s);
        m_main->click("cmdAdd"); // Update
        QCOMPARE(m_main->row(23).at(2), u"changed"_s);
        QCOMPARE(gVocabList().entry(32766).Definition, u"changed"_s);
        QVERIFY(gChanged);
        QVERIFY(m_main->action("mnuSave").isEnabled());
    }

    void thePageAfterTheLastFullOneEndsInError6AndIsNotShown()
    {
        open(32766);
        QTest::keyClick(&m_main->grid(), Qt::Key_End);
        expectOverflow();
        m_main->bar().setValue(32767);
        expectOverflow();
        m_main->click("cmdNewWord");
        m_main->click("cmdAbort");
        for (int row = 1; row <= 23; ++row)
            QCOMPARE(m_main->row(row), rowOf(32743 + row));
        verifyNothingIsLost(32766);
    }

    void anEntryOfTheLastPageIsDeleted()
    {
        open(32766);
        QTest::keyClick(&m_main->grid(), Qt::Key_End);
        m_main->clickCell(23, 1);
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'w 32766' ?"_s,
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        QCOMPARE(gVocabList().NumWords().toInt(), 32765);
        QCOMPARE(m_main->row(22), rowOf(32765));
        QVERIFY(gChanged);
        QVERIFY(m_main->action("mnuSave").isEnabled());
        QCOMPARE(m_main->look(), EditorModes::idle());
    }

    void afterADeletionTheLongestListIsShownInTheGrid()
    {
        open(Integer::Max);
        m_main->click("cmdSearch");
        m_main->type("txtWord", u"w 5"_s);
        expectOverflow();
        m_main->click("cmdSearch"); // finds it but cannot show it
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'w 5' ?"_s,
                                     QMessageBox::Yes);
        m_main->choose("mnuDeleteWord");
        QCOMPARE(gVocabList().NumWords().toInt(), 32766);
        QCOMPARE(m_main->row(4), rowOf(4));
        QCOMPARE(m_main->row(5).at(1), u"w 6"_s);
        QVERIFY(gChanged);
    }

    void anotherListOpensAfterTheLongestOne()
    {
        open(Integer::Max);
        const QString other = m_main->path(u"other.lwx"_s);
        writeFile(other, listBytes(someEntries(5, u"w"_s)));
        openList(*m_main, other);
        for (int row = 1; row <= 5; ++row)
            QCOMPARE(m_main->row(row), rowOf(row));
        QCOMPARE(m_main->bar().maximum(), 6);
    }

    void aNewListBeginsAfterTheLongestOne()
    {
        open(Integer::Max);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->choose("mnuNew");
        m_main->type("txtWord", u"cat"_s);
        QTest::keyClick(&m_main->control<QWidget>("txtWord"), Qt::Key_Return);
        QCOMPARE(m_main->row(1).at(1), u"cat"_s);
    }

private:
    void expectOverflow() { m_main->answers.expectMsgBox(Overflow); }

    // Makes and opens a list with this number of entries. The grid cannot show the longest one.
    QByteArray open(int count)
    {
        const QByteArray bytes = longList(count);
        writeFile(m_path, bytes);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.chooseFile(m_path);
        if (count == Integer::Max)
            expectOverflow();
        m_main->choose("mnuOpen");
        return bytes;
    }

    void verifyNothingIsLost(int count)
    {
        QVERIFY(m_main->answers.allSeen());
        QCOMPARE(openEntries(), someEntries(count, u"w"_s));
        QVERIFY(!gChanged);
        m_main->answers.expectMsgBox(m_path + u" has been saved."_s);
        m_main->action("mnuSave").setEnabled(true);
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_path), longList(count));
    }

    QString m_path;
    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_LongLists_test>(argc, argv);
}

#include "frmMain_LongLists_test.moc"
