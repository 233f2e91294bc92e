// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/EditorModes.h"
#include "support/FormTest.h"
#include "support/MainWindow.h"

#include <QLineEdit>
#include <QScrollBar>

using namespace Module1;

namespace {

// From the idle editor.
void search(MainWindow &main, const QString &word)
{
    main.click("cmdSearch");
    main.type("txtWord", word);
    main.click("cmdSearch");
}

QString missing(const QString &word)
{
    return word + QStringLiteral(" is not in the list.");
}

} // namespace

class frmMain_Search_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAWordSearchOpensTheWordBox();
    void withoutAWordSearchTakesTheMarkOff();
    void aHitIsShownInTheBoxes();
    void aHitBecomesCurrentAndItsRowMarked_data();
    void aHitBecomesCurrentAndItsRowMarked();
    void theHitsPageIsShownWhereTheBarStandsThereAlready();
    void theFormerMarkGoes();
    void theWordIsTrimmedAndItsCaseIgnored_data();
    void theWordIsTrimmedAndItsCaseIgnored();
    void searchingAgainStepsThroughTheDuplicatesAndWraps();
    void searchingAgainForTheOnlyMatchStaysThere();
    void aMissIsToldAndChangesNothing_data();
    void aMissIsToldAndChangesNothing();
    void aMissAfterAHitKeepsTheHit();
    void theNextWordCanBeTypedAfterASearch_data();
    void theNextWordCanBeTypedAfterASearch();
    void anUpdateStartsTheSearchAtTheBeginning();
    void enterInTheWordBoxSearches();
    void aFoundEntryStaysCurrentWhileThePageScrolls();
    void aFoundEntryThatIsAbortedIsNoLongerKept();
    void pickingARowAfterASearchEditsIt();
    void anEmptyListHasNothing();
};

void frmMain_Search_test::withoutAWordSearchOpensTheWordBox()
{
    MainWindow main;
    main.fill(3);
    main.click("cmdSearch");
    QCOMPARE(main.look(), EditorModes::searching());
    QVERIFY(main.control<QWidget>("txtWord").hasFocus());
    QVERIFY(main.answers.allSeen());
}

void frmMain_Search_test::withoutAWordSearchTakesTheMarkOff()
{
    MainWindow main;
    main.fill(3);
    main.clickCell(2, 1);
    main.click("cmdAbort");
    main.click("cmdSearch");
    QCOMPARE(main.markedRows(), QList<int>());
}

void frmMain_Search_test::aHitIsShownInTheBoxes()
{
    MainWindow main;
    main.fill(5);
    search(main, QStringLiteral("word 4"));
    QCOMPARE(main.look(), EditorModes::found());
    QCOMPARE(main.text("txtWord"), QStringLiteral("word 4"));
    QCOMPARE(main.text("txtDefinition"), QStringLiteral("definition 4"));
    QCOMPARE(main.text("txtSentence"), QStringLiteral("sentence 4"));
    QVERIFY(main.control<QWidget>("txtWord").hasFocus());
    QVERIFY(!gNewWord);
    QVERIFY(!gWordSelected);
    QVERIFY(!gChanged);
}

void frmMain_Search_test::aHitBecomesCurrentAndItsRowMarked_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("hit");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("row");
    QTest::newRow("first of 5") << 5 << 1 << 1 << 1;
    QTest::newRow("last of 5") << 5 << 5 << 1 << 5;
    QTest::newRow("last of 22") << 22 << 22 << 1 << 22;
    QTest::newRow("first of 23") << 23 << 1 << 1 << 1;
    QTest::newRow("third of 23") << 23 << 3 << 3 << 1;
    QTest::newRow("last of 23") << 23 << 23 << 23 << 1;
    QTest::newRow("50 of 100") << 100 << 50 << 50 << 1;
    QTest::newRow("last of 100") << 100 << 100 << 100 << 1;
}

void frmMain_Search_test::aHitBecomesCurrentAndItsRowMarked()
{
    QFETCH(int, entries);
    QFETCH(int, hit);
    QFETCH(int, row);
    MainWindow main;
    main.fill(entries);
    search(main, QStringLiteral("word %1").arg(hit));
    QCOMPARE(gVocabList().CurrentWord(), hit);
    QTEST(main.bar().value(), "value");
    QCOMPARE(main.markedRows(), QList<int>{row});
    QCOMPARE(gHighlightRow, row);
    QCOMPARE(main.row(row), EditorModes::filledRow(hit));
}

void frmMain_Search_test::theHitsPageIsShownWhereTheBarStandsThereAlready()
{
    MainWindow main;
    main.fill(30);
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("cat"));
    main.click("cmdAdd");
    main.click("cmdAbort");
    QCOMPARE(main.bar().value(), 31);
    QCOMPARE(main.row(1), EditorModes::filledRow(10));
    search(main, QStringLiteral("cat"));
    QCOMPARE(main.bar().value(), 31);
    QCOMPARE(main.row(1).mid(0, 2), (QStringList{QStringLiteral("31"), QStringLiteral("cat")}));
    QCOMPARE(main.markedRows(), QList<int>{1});
    QCOMPARE(gVocabList().CurrentWord(), 31);
}

void frmMain_Search_test::theFormerMarkGoes()
{
    MainWindow main;
    main.fill(5);
    main.clickCell(2, 1);
    main.click("cmdAbort");
    search(main, QStringLiteral("word 4"));
    QCOMPARE(main.markedRows(), QList<int>{4});
    main.type("txtWord", QStringLiteral("word 5"));
    main.click("cmdSearch");
    QCOMPARE(main.markedRows(), QList<int>{5});
}

void frmMain_Search_test::theWordIsTrimmedAndItsCaseIgnored_data()
{
    QTest::addColumn<QString>("word");
    for (const char *word : {"big cat", "BIG CAT", "  big cat", "Big Cat   "})
        QTest::newRow(word) << QString::fromLatin1(word);
}

void frmMain_Search_test::theWordIsTrimmedAndItsCaseIgnored()
{
    QFETCH(QString, word);
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("Big cat"), QStringLiteral("dog")});
    search(main, word);
    QCOMPARE(gVocabList().CurrentWord(), 2);
    QCOMPARE(main.text("txtWord"), QStringLiteral("Big cat"));
    QVERIFY(main.answers.allSeen());
}

void frmMain_Search_test::searchingAgainStepsThroughTheDuplicatesAndWraps()
{
    MainWindow main;
    main.fill({QStringLiteral("Cat"), QStringLiteral("dog"), QStringLiteral("CAT"),
               QStringLiteral("cats"), QStringLiteral("cat")});
    search(main, QStringLiteral("cat"));
    for (const int hit : {1, 3, 5, 1, 3}) {
        QCOMPARE(gVocabList().CurrentWord(), hit);
        QCOMPARE(main.markedRows(), QList<int>{hit});
        main.click("cmdSearch");
    }
    QVERIFY(main.answers.allSeen());
}

void frmMain_Search_test::searchingAgainForTheOnlyMatchStaysThere()
{
    MainWindow main;
    main.fill(30);
    search(main, QStringLiteral("word 7"));
    main.click("cmdSearch");
    QCOMPARE(gVocabList().CurrentWord(), 7);
    QCOMPARE(main.markedRows(), QList<int>{1});
    QVERIFY(main.answers.allSeen());
}

void frmMain_Search_test::aMissIsToldAndChangesNothing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("told");
    QTest::newRow("unknown") << QStringLiteral("dog") << QStringLiteral("dog");
    QTest::newRow("trimmed") << QStringLiteral("  dog ") << QStringLiteral("dog");
    QTest::newRow("beginning of a word") << QStringLiteral("wor") << QStringLiteral("wor");
    QTest::newRow("blanks") << QStringLiteral("  ") << QString();
}

void frmMain_Search_test::aMissIsToldAndChangesNothing()
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

void frmMain_Search_test::aMissAfterAHitKeepsTheHit()
{
    MainWindow main;
    main.fill(30);
    search(main, QStringLiteral("word 7"));
    main.type("txtWord", QStringLiteral("dog"));
    main.answers.expectMsgBox(missing(QStringLiteral("dog")));
    main.click("cmdSearch");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().CurrentWord(), 7);
    QCOMPARE(main.markedRows(), QList<int>{1});
}

void frmMain_Search_test::theNextWordCanBeTypedAfterASearch_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("hit") << QStringLiteral("word 4");
    QTest::newRow("miss") << QStringLiteral("cat");
}

void frmMain_Search_test::theNextWordCanBeTypedAfterASearch()
{
    QFETCH(QString, word);
    MainWindow main;
    main.fill(5);
    if (!word.startsWith(QStringLiteral("word")))
        main.answers.expectMsgBox(missing(word));
    search(main, word);
    QVERIFY(main.answers.allSeen());
    auto &box = main.control<QLineEdit>("txtWord");
    QTRY_VERIFY(box.hasFocus());
    QCOMPARE(box.selectedText(), word);
    QTest::keyClicks(&box, QStringLiteral("word 2"));
    Controls::press(Qt::Key_Return);
    QCOMPARE(main.text("txtWord"), QStringLiteral("word 2"));
    QCOMPARE(main.text("txtDefinition"), QStringLiteral("definition 2"));
    QCOMPARE(box.selectedText(), QStringLiteral("word 2"));
}

void frmMain_Search_test::anUpdateStartsTheSearchAtTheBeginning()
{
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog"), QStringLiteral("cat")});
    search(main, QStringLiteral("cat"));
    QCOMPARE(gVocabList().CurrentWord(), 1);
    main.clickCell(2, 1);
    main.click("cmdAdd");
    search(main, QStringLiteral("cat"));
    QCOMPARE(gVocabList().CurrentWord(), 1);
}

void frmMain_Search_test::enterInTheWordBoxSearches()
{
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog"), QStringLiteral("cat")});
    main.click("cmdSearch");
    main.type("txtWord", QStringLiteral("cat"));
    Controls::press(Qt::Key_Return);
    QCOMPARE(gVocabList().CurrentWord(), 1);
    Controls::press(Qt::Key_Return);
    QCOMPARE(gVocabList().CurrentWord(), 3);
}

void frmMain_Search_test::aFoundEntryStaysCurrentWhileThePageScrolls()
{
    MainWindow main;
    main.fill(60);
    search(main, QStringLiteral("word 30"));
    QCOMPARE(main.markedRows(), QList<int>{1});
    const auto scroll = [&main](int value, const QList<int> &marked) {
        main.bar().setValue(value);
        QCOMPARE(main.row(1), EditorModes::filledRow(value));
        QCOMPARE(main.markedRows(), marked);
        QCOMPARE(gVocabList().CurrentWord(), 30);
        QCOMPARE(main.text("txtWord"), QStringLiteral("word 30"));
    };
    scroll(31, {});
    scroll(29, {2});
    scroll(7, {24});
    scroll(6, {});
    scroll(30, {1});
}

void frmMain_Search_test::aFoundEntryThatIsAbortedIsNoLongerKept()
{
    MainWindow main;
    main.fill(60);
    search(main, QStringLiteral("word 30"));
    main.click("cmdAbort");
    main.bar().setValue(20);
    QCOMPARE(main.markedRows(), QList<int>());
    QCOMPARE(gVocabList().CurrentWord(), 44);
}

void frmMain_Search_test::pickingARowAfterASearchEditsIt()
{
    MainWindow main;
    main.fill(5);
    search(main, QStringLiteral("word 4"));
    main.clickCell(2, 2);
    QCOMPARE(main.look(), EditorModes::editing());
    QCOMPARE(main.text("txtWord"), QStringLiteral("word 2"));
    QCOMPARE(main.markedRows(), QList<int>{2});
}

void frmMain_Search_test::anEmptyListHasNothing()
{
    MainWindow main;
    main.answers.expectMsgBox(missing(QStringLiteral("cat")));
    search(main, QStringLiteral("cat"));
    QVERIFY(main.answers.allSeen());
    QCOMPARE(main.markedRows(), QList<int>());
}

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Search_test>(argc, argv);
}

#include "frmMain_Search_test.moc"
