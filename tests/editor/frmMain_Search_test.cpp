// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/EditorModes.h"
#include "editor/MainWindow.h"
#include "support/FormTest.h"

#include <QLineEdit>
#include <QScrollBar>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

// Starts in the idle editor.
void search(MainWindow &main, const QString &word)
{
    main.click("cmdSearch");
    main.type("txtWord", word);
    main.click("cmdSearch");
}

QString missing(const QString &word)
{
    return word + u" is not in the list."_s;
}

} // namespace

class frmMain_Search_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAWordSearchOpensTheWordBox()
    {
        MainWindow main;
        main.fill(3);
        main.click("cmdSearch");
        QCOMPARE(main.look(), EditorModes::searching());
        QVERIFY(main.control<QWidget>("txtWord").hasFocus());
        QVERIFY(main.answers.allSeen());
    }

    void withoutAWordSearchTakesTheMarkOff()
    {
        MainWindow main;
        main.fill(3);
        main.clickCell(2, 1);
        main.click("cmdAbort");
        main.click("cmdSearch");
        QCOMPARE(main.markedRows(), QList<int>());
    }

    void aHitIsShownInTheBoxes()
    {
        MainWindow main;
        main.fill(5);
        search(main, u"word 4"_s);
        QCOMPARE(main.look(), EditorModes::found());
        QCOMPARE(main.text("txtWord"), u"word 4"_s);
        QCOMPARE(main.text("txtDefinition"), u"definition 4"_s);
        QCOMPARE(main.text("txtSentence"), u"sentence 4"_s);
        QVERIFY(main.control<QWidget>("txtWord").hasFocus());
        QVERIFY(!gNewWord);
        QVERIFY(!gWordSelected);
        QVERIFY(!gChanged);
    }

    void aHitBecomesCurrentAndItsRowMarked_data()
    {
        QTest::addColumn<int>("entries");
        QTest::addColumn<int>("hit");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("row");
        QTest::newRow("last of 5") << 5 << 5 << 1 << 5;
        QTest::newRow("50 of 100") << 100 << 50 << 50 << 1;
    }

    void aHitBecomesCurrentAndItsRowMarked()
    {
        QFETCH(int, entries);
        QFETCH(int, hit);
        QFETCH(int, row);
        MainWindow main;
        main.fill(entries);
        search(main, u"word %1"_s.arg(hit));
        QCOMPARE(gVocabList().CurrentWord(), hit);
        QTEST(main.bar().value(), "value");
        QCOMPARE(main.markedRows(), QList<int>{row});
        QCOMPARE(gHighlightRow, row);
        QCOMPARE(main.row(row), EditorModes::filledRow(hit));
    }

    void theHitsPageIsShownEvenIfTheBarDoesNotMove()
    {
        MainWindow main;
        main.fill(30);
        main.click("cmdNewWord");
        main.typeEntry(u"cat"_s);
        main.click("cmdAdd");
        main.click("cmdAbort");
        QCOMPARE(main.bar().value(), 31);
        QCOMPARE(main.row(1), EditorModes::filledRow(10));
        search(main, u"cat"_s);
        QCOMPARE(main.bar().value(), 31);
        QCOMPARE(main.row(1).mid(0, 2), (QStringList{u"31"_s, u"cat"_s}));
        QCOMPARE(main.markedRows(), QList<int>{1});
        QCOMPARE(gVocabList().CurrentWord(), 31);
    }

    void theFormerMarkIsRemoved()
    {
        MainWindow main;
        main.fill(5);
        main.clickCell(2, 1);
        main.click("cmdAbort");
        search(main, u"word 4"_s);
        QCOMPARE(main.markedRows(), QList<int>{4});
        main.type("txtWord", u"word 5"_s);
        main.click("cmdSearch");
        QCOMPARE(main.markedRows(), QList<int>{5});
    }

    void theWordIsTrimmedAndItsCaseIgnored_data()
    {
        QTest::addColumn<QString>("word");
        for (const char *word : {"big cat", "BIG CAT", "  big cat", "Big Cat   "})
            QTest::newRow(word) << QString::fromLatin1(word);
    }

    void theWordIsTrimmedAndItsCaseIgnored()
    {
        QFETCH(QString, word);
        MainWindow main;
        main.fill({u"cat"_s, u"Big cat"_s, u"dog"_s});
        search(main, word);
        QCOMPARE(gVocabList().CurrentWord(), 2);
        QCOMPARE(main.text("txtWord"), u"Big cat"_s);
        QVERIFY(main.answers.allSeen());
    }

    void searchingAgainStepsThroughTheDuplicatesAndWraps()
    {
        MainWindow main;
        main.fill({u"Cat"_s, u"dog"_s, u"CAT"_s, u"cats"_s, u"cat"_s});
        search(main, u"cat"_s);
        for (const int hit : {1, 3, 5, 1, 3}) {
            QCOMPARE(gVocabList().CurrentWord(), hit);
            QCOMPARE(main.markedRows(), QList<int>{hit});
            main.click("cmdSearch");
        }
        QVERIFY(main.answers.allSeen());
    }

    void searchingAgainForTheOnlyMatchStaysThere()
    {
        MainWindow main;
        main.fill(30);
        search(main, u"word 7"_s);
        main.click("cmdSearch");
        QCOMPARE(gVocabList().CurrentWord(), 7);
        QCOMPARE(main.markedRows(), QList<int>{1});
        QVERIFY(main.answers.allSeen());
    }

    void aMissIsReportedAndChangesNothing_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("told");
        QTest::newRow("unknown") << u"dog"_s << u"dog"_s;
        QTest::newRow("trimmed") << u"  dog "_s << u"dog"_s;
        QTest::newRow("beginning of a word") << u"wor"_s << u"wor"_s;
        QTest::newRow("blanks") << u"  "_s << QString();
    }

    void aMissIsReportedAndChangesNothing()
    {
        QFETCH(QString, typed);
        QFETCH(QString, told);
        MainWindow main;
        main.fill(30);
        const Integer current = gVocabList().CurrentWord();
        main.answers.expectMsgBox(missing(told), QMessageBox::Ok, [](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        });
        search(main, typed);
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), 30);
        QCOMPARE(gVocabList().CurrentWord(), current);
        QCOMPARE(main.text("txtWord"), typed);
        QCOMPARE(main.row(1), EditorModes::filledRow(1));
        QCOMPARE(main.markedRows(), QList<int>());
        QCOMPARE(main.look(), EditorModes::searching());
        QTRY_VERIFY(main.control<QWidget>("txtWord").hasFocus());
    }

    void aMissAfterAHitKeepsTheHit()
    {
        MainWindow main;
        main.fill(30);
        search(main, u"word 7"_s);
        main.type("txtWord", u"dog"_s);
        main.answers.expectMsgBox(missing(u"dog"_s));
        main.click("cmdSearch");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().CurrentWord(), 7);
        QCOMPARE(main.markedRows(), QList<int>{1});
    }

    void theNextWordCanBeTypedAfterASearch_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("hit") << u"word 4"_s;
        QTest::newRow("miss") << u"cat"_s;
    }

    void theNextWordCanBeTypedAfterASearch()
    {
        QFETCH(QString, word);
        MainWindow main;
        main.fill(5);
        if (!word.startsWith(u"word"_s))
            main.answers.expectMsgBox(missing(word));
        search(main, word);
        QVERIFY(main.answers.allSeen());
        auto &box = main.control<QLineEdit>("txtWord");
        QTRY_VERIFY(box.hasFocus());
        QCOMPARE(box.selectedText(), word);
        QTest::keyClicks(&box, u"word 2"_s);
        Controls::press(Qt::Key_Return);
        QCOMPARE(main.text("txtWord"), u"word 2"_s);
        QCOMPARE(main.text("txtDefinition"), u"definition 2"_s);
        QCOMPARE(box.selectedText(), u"word 2"_s);
    }

    void anUpdateStartsTheSearchAtTheBeginning()
    {
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s, u"cat"_s});
        search(main, u"cat"_s);
        QCOMPARE(gVocabList().CurrentWord(), 1);
        main.clickCell(2, 1);
        main.click("cmdAdd");
        search(main, u"cat"_s);
        QCOMPARE(gVocabList().CurrentWord(), 1);
    }

    void enterInTheWordBoxSearches()
    {
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s, u"cat"_s});
        main.click("cmdSearch");
        main.type("txtWord", u"cat"_s);
        Controls::press(Qt::Key_Return);
        QCOMPARE(gVocabList().CurrentWord(), 1);
        Controls::press(Qt::Key_Return);
        QCOMPARE(gVocabList().CurrentWord(), 3);
    }

    void aFoundEntryStaysCurrentWhileThePageScrolls()
    {
        MainWindow main;
        main.fill(60);
        search(main, u"word 30"_s);
        QCOMPARE(main.markedRows(), QList<int>{1});
        const auto scroll = [&main](int value, const QList<int> &marked) {
            main.bar().setValue(value);
            QCOMPARE(main.row(1), EditorModes::filledRow(value));
            QCOMPARE(main.markedRows(), marked);
            QCOMPARE(gVocabList().CurrentWord(), 30);
            QCOMPARE(main.text("txtWord"), u"word 30"_s);
        };
        scroll(31, {});
        scroll(29, {2});
        scroll(7, {24});
        scroll(6, {});
        scroll(30, {1});
    }

    void aFoundEntryThatIsAbortedIsNoLongerCurrent()
    {
        MainWindow main;
        main.fill(60);
        search(main, u"word 30"_s);
        main.click("cmdAbort");
        main.bar().setValue(20);
        QCOMPARE(main.markedRows(), QList<int>());
        QCOMPARE(gVocabList().CurrentWord(), 44);
    }

    void pickingARowAfterASearchEditsIt()
    {
        MainWindow main;
        main.fill(5);
        search(main, u"word 4"_s);
        main.clickCell(2, 2);
        QCOMPARE(main.look(), EditorModes::editing());
        QCOMPARE(main.text("txtWord"), u"word 2"_s);
        QCOMPARE(main.markedRows(), QList<int>{2});
    }

    void anEmptyListHasNothing()
    {
        MainWindow main;
        main.answers.expectMsgBox(missing(u"cat"_s));
        search(main, u"cat"_s);
        QVERIFY(main.answers.allSeen());
        QCOMPARE(main.markedRows(), QList<int>());
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Search_test>(argc, argv);
}

#include "frmMain_Search_test.moc"
