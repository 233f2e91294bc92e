// SPDX-License-Identifier: GPL-3.0-or-later
// What OK does to the target file, and to the name and the changed mark of the open list.
#include "transfer/dlgExport.h"

#include "support/FormTest.h"
#include "support/SmallFiles.h"
#include "transfer/ExportForm.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString OpenList = u"/lists/animals.lwx"_s;

} // namespace

class dlgExport_Writing_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(10); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void theRangeIsWrittenInItsOrder_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("end");
        QTest::newRow("3 to 5") << 3 << 5;
        QTest::newRow("5 to 3") << 5 << 3;
        QTest::newRow("one word") << 4 << 4;
        QTest::newRow("the first") << 1 << 1;
        QTest::newRow("the last") << 10 << 10;
        QTest::newRow("the whole list") << 1 << 10;
        QTest::newRow("the whole list downwards") << 10 << 1;
    }

    void theRangeIsWrittenInItsOrder()
    {
        QFETCH(int, start);
        QFETCH(int, end);
        m_form->chooseRange(start, end);
        const QStringList words = ExportForm::words(start, end);
        expectAdded(int(words.size()));
        ok();
        QCOMPARE(readFile(m_target), number16(words.size()) + ExportForm::records(words));
        QCOMPARE(gVocabList().CurrentWord(), Integer(end));
        QCOMPARE(wordsOf(gVocabList()), ExportForm::words(1, 10));
    }

    void afterwardsTheTargetIsTheNamedFileAndNothingCountsAsChanged()
    {
        expectAdded(10);
        ok();
        QVERIFY(!m_form->dialog().isVisible());
        QCOMPARE(gFileName, m_target);
        QVERIFY(!gChanged);
        QCOMPARE(gOpenedFile, OpenList);
        QCOMPARE(gExportList().NumWords(), Integer(0)); // its memory is released
    }

    void theMessageComesWhenTheDialogIsGone()
    {
        m_form->answers.expectMsgBox(
            u"10 words has been added to "_s + m_target, QMessageBox::Ok, [this](QMessageBox &box) {
                QVERIFY(!m_form->dialog().isVisible());
                QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            });
        ok();
    }

    void theOnlyWordIsExportedAlthoughThePreviewIsEmpty()
    {
        start(1);
        QCOMPARE(m_form->preview(), QStringList());
        expectAdded(1);
        ok();
        QCOMPARE(readFile(m_target), number16(1) + ExportForm::records({u"w1"_s}));
    }

    void wordsAreAppendedEvenIfTheTargetHasThem()
    {
        writeFile(m_target, number16(2) + recordBytes("old", "a", "b") + addedRecord("w4"));
        m_form->chooseRange(3, 5);
        expectAdded(3);
        ok();
        QCOMPARE(readFile(m_target), number16(5) + recordBytes("old", "a", "b") +
                                         addedRecord("w4") +
                                         ExportForm::records(ExportForm::words(3, 5)));
    }

    void exportingTwiceAppendsTheRangeTwice()
    {
        m_form->chooseRange(3, 5);
        expectAdded(3);
        ok();
        m_form->open();
        m_form->chooseRange(3, 5);
        expectAdded(3);
        ok();
        const QByteArray once = ExportForm::records(ExportForm::words(3, 5));
        QCOMPARE(readFile(m_target), number16(6) + once + once);
    }

    void anEmptyTargetTakesTheWords()
    {
        writeFile(m_target, {});
        expectAdded(10);
        ok();
        QCOMPARE(readFile(m_target), number16(10) + ExportForm::records(ExportForm::words(1, 10)));
    }

    void bytesBehindTheNewEndOfTheTargetStay()
    {
        const QByteArray tail(100, 't');
        writeFile(m_target, number16(1) + addedRecord("old") + tail);
        m_form->chooseRange(2, 3);
        expectAdded(2);
        ok();
        const QByteArray added = addedRecord("w2") + addedRecord("w3");
        QCOMPARE(readFile(m_target),
                 number16(3) + addedRecord("old") + added + tail.mid(added.size()));
    }

    void theTypedNameCountsWithoutOuterBlanks()
    {
        expectAdded(10);
        ok(u"  "_s + m_target + u" "_s);
        QCOMPARE(gFileName, m_target);
        QVERIFY(QFile::exists(m_target));
    }

    void theOpenListsOwnFileMayBeTyped()
    {
        writeFile(m_target, number16(1) + addedRecord("w1"));
        gOpenedFile = gFileName = m_target;
        m_form->chooseRange(2, 2);
        expectAdded(1);
        ok();
        QCOMPARE(readFile(m_target), number16(2) + addedRecord("w1") + addedRecord("w2"));
        QCOMPARE(wordsOf(gVocabList()), ExportForm::words(1, 10));
    }

    void textsAreWrittenInTheCodePage()
    {
        start(1);
        gVocabList().Edit(u"d\u00E9j\u00E0 vu"_s, u"\u20AC \u4E2D"_s, u"two\r\nlines"_s);
        expectAdded(1);
        ok();
        QCOMPARE(readFile(m_target),
                 number16(1) + recordBytes("d\xE9j\xE0 vu", "\x80 ?", "two\r\nlines"));
    }

    void withoutAFileNameOkDoesNothing()
    {
        ok(QString());
        QVERIFY(m_form->dialog().isVisible());
        QCOMPARE(m_form->answers.seen(), 0);
        QCOMPARE(gFileName, OpenList);
        QVERIFY(gChanged);
    }

    void aBlankFileNameIsInvalid()
    {
        m_form->answers.expectMsgBox(u"Invalid file name."_s);
        ok(u"   "_s);
        QVERIFY(m_form->dialog().isVisible());
        QCOMPARE(wordsOf(gVocabList()), ExportForm::words(1, 10));
        // The open list keeps its name, and its changes are still unsaved.
        QCOMPARE(gFileName, OpenList);
        QVERIFY(gChanged);
        // After that another name works.
        expectAdded(10);
        ok();
        QVERIFY(!m_form->dialog().isVisible());
    }

    void aFullTargetTellsOfEachWordThatItRefuses()
    {
        QByteArray records;
        for (int i = 0; i < 31'999; ++i)
            records += addedRecord("old");
        writeFile(m_target, number16(31'999) + records);
        m_form->chooseRange(3, 5);
        const QString full = u"Cannot add any more words. Maximum number of words= 32000"_s;
        m_form->answers.expectMsgBox(full);
        m_form->answers.expectMsgBox(full);
        expectAdded(3);
        ok();
        QCOMPARE(readFile(m_target), number16(32'000) + records + addedRecord("w3"));
    }

    void aFullTargetTellsAtOnceOfTheWordsBeyondThree()
    {
        QByteArray records;
        for (int i = 0; i < 32'000; ++i)
            records += addedRecord("old");
        writeFile(m_target, number16(32'000) + records);
        for (int i = 0; i < 3; ++i)
            m_form->answers.expectMsgBox(
                u"Cannot add any more words. Maximum number of words= 32000"_s);
        m_form->answers.expectMsgBox(u"7 more words have not been added."_s);
        expectAdded(10);
        ok();
        QCOMPARE(readFile(m_target), number16(32'000) + records);
    }

    void enterInARangeBoxTakesWhatIsTypedThere_data()
    {
        QTest::addColumn<QByteArray>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("start") << "txtStart"_ba << u"8"_s << ExportForm::words(8, 10);
        QTest::newRow("end") << "txtEnd"_ba << u"2"_s << ExportForm::words(1, 2);
        QTest::newRow("start corrected") << "txtStart"_ba << u"99"_s << ExportForm::words(10, 10);
        QTest::newRow("end corrected") << "txtEnd"_ba << u"0"_s << ExportForm::words(1, 1);
    }

    void enterInARangeBoxTakesWhatIsTypedThere()
    {
        QFETCH(QByteArray, box);
        QFETCH(QString, typed);
        QFETCH(QStringList, words);
        m_form->typeTarget(m_target);
        m_form->type(box, typed);
        expectAdded(int(words.size()));
        Controls::press(Qt::Key_Return);
        QVERIFY(!m_form->dialog().isVisible());
        QCOMPARE(readFile(m_target), number16(words.size()) + ExportForm::records(words));
    }

    void aRangeThatIsReportedIsNotExported_data()
    {
        QTest::addColumn<QByteArray>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("byKey");
        QTest::addColumn<QString>("report");
        const QString mismatch = u"Run-time error '13':\n\nType mismatch"_s;
        const QString overflow = u"Run-time error '6':\n\nOverflow"_s;
        for (const char *box : {"txtStart", "txtEnd"}) {
            for (const bool byKey : {true, false}) {
                const char *how = byKey ? "Enter" : "click";
                QTest::addRow("%s: no number, %s", box, how)
                    << QByteArray(box) << u"three"_s << byKey << mismatch;
                QTest::addRow("%s: too large, %s", box, how)
                    << QByteArray(box) << u"40000"_s << byKey << overflow;
            }
        }
    }

    void aRangeThatIsReportedIsNotExported()
    {
        QFETCH(QByteArray, box);
        QFETCH(QString, typed);
        QFETCH(bool, byKey);
        QFETCH(QString, report);
        m_form->typeTarget(m_target);
        m_form->type(box, typed);
        m_form->answers.expectMsgBox(report);
        if (byKey) {
            Controls::press(Qt::Key_Return);
        } else {
            // The error message takes the mouse events, not the button.
            auto &button = m_form->control<QPushButton>("cmdOk");
            QTest::mousePress(&button, Qt::LeftButton);
            QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(-20, -20));
        }
        verifyNothingHappened();
        QVERIFY(!QFile::exists(m_target));
    }

    void aBoxLeftWithAMistakeKeepsItsOldNumber_data()
    {
        QTest::addColumn<QByteArray>("box");
        QTest::newRow("start") << "txtStart"_ba;
        QTest::newRow("end") << "txtEnd"_ba;
    }

    void aBoxLeftWithAMistakeKeepsItsOldNumber()
    {
        QFETCH(QByteArray, box);
        m_form->chooseRange(3, 5);
        m_form->answers.expectMsgBox(u"Run-time error '13':\n\nType mismatch"_s);
        m_form->typeAndLeave(box, u"three"_s);
        QVERIFY(m_form->answers.allSeen());
        m_form->activate();
        expectAdded(3);
        ok();
        QCOMPARE(readFile(m_target), number16(3) + ExportForm::records(ExportForm::words(3, 5)));
    }

    void enterReadsOnlyTheBoxWithTheFocus()
    {
        m_form->typeTarget(m_target);
        m_form->answers.expectMsgBox(u"Run-time error '13':\n\nType mismatch"_s);
        m_form->typeAndLeave("txtStart", u"three"_s);
        m_form->type("txtEnd", u"4"_s);
        expectAdded(4);
        Controls::press(Qt::Key_Return);
        QCOMPARE(readFile(m_target), number16(4) + ExportForm::records(ExportForm::words(1, 4)));
    }

    void aTargetThatIsNoListIsRefusedAndLeftAsItIs_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("one byte") << "x"_ba;
        QTest::newRow("a count without records") << number16(1);
        QTest::newRow("the largest count without records") << number16(32'767);
        QTest::newRow("a record cut off") << number16(1) + addedRecord("old").chopped(1);
        QTest::newRow("one record of two") << number16(2) + addedRecord("old");
        QTest::newRow("count -1") << number16(-1);
        QTest::newRow("the smallest count") << number16(-32768);
        QTest::newRow("a negative count before good entries")
            << number16(-2) + addedRecord("a") + addedRecord("b");
        QTest::newRow("a DIF file") << "TABLE\r\n0,1\r\n\"\"\r\nVECTORS\r\n0,1\r\n"_ba;
        QTest::newRow("a text") << "Words of a language"_ba;
    }

    void aTargetThatIsNoListIsRefusedAndLeftAsItIs()
    {
        QFETCH(QByteArray, bytes);
        writeFile(m_target, bytes);
        expectReport(u"Run-time error '321':\n\nInvalid file format\n"_s + m_target);
        ok();
        verifyNothingHappened();
        QCOMPARE(readFile(m_target), bytes);
    }

    void aTargetThatCannotBeOpenedIsReported_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("report");
        QTest::newRow("no such folder")
            << u"lost/other.lwx"_s << u"Run-time error '76':\n\nPath not found\n"_s;
        QTest::newRow("a folder") << u"folder"_s
                                  << u"Run-time error '75':\n\nPath/File access error\n"_s;
        QTest::newRow("a pipe") << u"pipe"_s
                                << u"Run-time error '75':\n\nPath/File access error\n"_s;
    }

    void aTargetThatCannotBeOpenedIsReported()
    {
        QFETCH(QString, name);
        QFETCH(QString, report);
        QVERIFY(QDir().mkdir(m_form->path(u"folder"_s)));
        QCOMPARE(mkfifo(QFile::encodeName(m_form->path(u"pipe"_s)).constData(), 0600), 0);
        const QString target = m_form->path(name);
        expectReport(report + target);
        ok(target);
        verifyNothingHappened();
    }

    void aTargetThatDoesNotFitOnTheDiskStaysWhole()
    {
        const QByteArray old = number16(1) + addedRecord("old");
        writeFile(m_target, old);
        gVocabList().CurrentWord(7);
        gVocabList().Edit(u"w7"_s, QString(60'000, u'x'), u"w7 sen"_s);
        const SmallFiles small(16 * 1024);
        expectReport(u"Run-time error '"_s);
        ok();
        verifyNothingHappened();
        QCOMPARE(readFile(m_target), old);
    }

    void aTextTooLongForTheFileIsReportedBeforeTheFileIsTouched()
    {
        const QByteArray old = number16(1) + addedRecord("old");
        writeFile(m_target, old);
        gVocabList().CurrentWord(7);
        gVocabList().Edit(u"w7"_s, u"w7 def"_s, QString(65'536, u'x'));
        expectReport(u"Run-time error '6':\n\nOverflow\n"_s);
        ok();
        verifyNothingHappened();
        QCOMPARE(readFile(m_target), old);
    }

private:
    void start(int entries)
    {
        m_form.reset();
        m_form = std::make_unique<ExportForm>(entries);
        m_target = m_form->path(u"other.lwx"_s);
        gFileName = gOpenedFile = OpenList;
        gChanged = true;
    }

    void ok() { ok(m_target); }
    void ok(const QString &target)
    {
        m_form->typeTarget(target);
        m_form->click("cmdOk");
    }

    void expectAdded(int count)
    {
        m_form->answers.expectMsgBox(u"%1 words has been added to %2"_s.arg(count).arg(m_target));
    }

    void expectReport(const QString &start)
    {
        m_form->answers.expectAnyMsgBox(QMessageBox::Ok, [start](QMessageBox &box) {
            QVERIFY2(box.text().startsWith(start), qPrintable(box.text()));
        });
    }

    // Checks that the dialog is open and the open list unchanged.
    void verifyNothingHappened()
    {
        QVERIFY(m_form->answers.allSeen());
        QVERIFY(m_form->dialog().isVisible());
        QCOMPARE(wordsOf(gVocabList()), ExportForm::words(1, 10));
        QCOMPARE(gExportList().NumWords(), Integer(0));
        QCOMPARE(gFileName, OpenList);
        QVERIFY(gChanged);
    }

    QString m_target;
    std::unique_ptr<ExportForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgExport_Writing_test>(argc, argv);
}

#include "dlgExport_Writing_test.moc"
