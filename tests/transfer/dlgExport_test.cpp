// SPDX-License-Identifier: GPL-3.0-or-later
// The range with its preview, and the file dialog of the target.
#include "transfer/dlgExport.h"

#include "platform/StatusLabel.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"
#include "transfer/ExportForm.h"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>

using namespace Module1;
using namespace Qt::StringLiterals;

class dlgExport_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<ExportForm>(); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void theCaptionsAreTheProgramsOwn()
    {
        QCOMPARE(m_form->dialog().windowTitle(), u"Export words"_s);
        QCOMPARE(m_form->control<QGroupBox>("Frame1").title(), u"Select words to export"_s);
        QCOMPARE(m_form->control<QLabel>("Label1").text(), u"Starting at word #:"_s);
        QCOMPARE(m_form->control<QLabel>("Label2").text(), u"Ending at word #: "_s);
        QCOMPARE(m_form->control<QGroupBox>("Frame2").title(), u"Insert words into this file"_s);
        QCOMPARE(m_form->control<QPushButton>("cmdBrowse").text(), u"&Browse"_s);
        QCOMPARE(m_form->control<QPushButton>("cmdOk").text(), u"&OK"_s);
        QCOMPARE(m_form->control<QPushButton>("cmdCancel").text(), u"&Cancel"_s);
        QVERIFY(m_form->control<QPushButton>("cmdOk").isDefault());
    }

    void opensWithTheWholeListChosen()
    {
        QCOMPARE(m_form->text("txtStart"), u"1"_s);
        QCOMPARE(m_form->text("txtEnd"), u"10"_s);
        QCOMPARE(m_form->text("txtFilename"), QString());
        QCOMPARE(m_form->preview(), ExportForm::words(1, 10));
    }

    void fillingThePreviewMovesTheCurrentPosition()
    {
        QCOMPARE(gVocabList().CurrentWord(), Integer(10));
        m_form->typeAndLeave("txtEnd", u"4"_s);
        QCOMPARE(gVocabList().CurrentWord(), Integer(4));
        m_form->typeAndLeave("txtStart", u"7"_s);
        QCOMPARE(gVocabList().CurrentWord(), Integer(4));
        m_form->typeAndLeave("txtEnd", u"9"_s);
        QCOMPARE(gVocabList().CurrentWord(), Integer(9));
    }

    void typingAloneDoesNotChangeThePreview()
    {
        m_form->type("txtStart", u"5"_s);
        QCOMPARE(m_form->preview(), ExportForm::words(1, 10));
        Controls::press(Qt::Key_Tab);
        QCOMPARE(m_form->preview(), ExportForm::words(5, 10));
    }

    void thePreviewRunsInTheDirectionOfTheRange_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("end");
        QTest::newRow("upwards") << 3 << 5;
        QTest::newRow("downwards") << 5 << 3;
        QTest::newRow("two upwards") << 9 << 10;
        QTest::newRow("two downwards") << 2 << 1;
        QTest::newRow("all downwards") << 10 << 1;
    }

    void thePreviewRunsInTheDirectionOfTheRange()
    {
        QFETCH(int, start);
        QFETCH(int, end);
        m_form->chooseRange(start, end);
        QCOMPARE(m_form->preview(), ExportForm::words(start, end));
        m_form->typeAndLeave("txtStart", QString::number(start));
        QCOMPARE(m_form->preview(), ExportForm::words(start, end));
    }

    void theNumbersOfTheWordsAreDrawnBesideThem()
    {
        auto &words = m_form->control<QListWidget>("lstExportWords");
        const auto drawn = [&words](int row) {
            words.item(row)->setText({});
            return words.viewport()->grab(words.visualItemRect(words.item(row))).toImage();
        };
        m_form->chooseRange(4, 9);
        QCOMPARE(m_form->preview(), ExportForm::words(4, 9));
        const QImage five = drawn(1);
        QVERIFY(drawn(2) != five);
        m_form->chooseRange(9, 4);
        QCOMPARE(drawn(4), five);
    }

    void aDoubleClickSetsTheStartAndTheNextOneTheEnd()
    {
        doubleClick(2);
        QCOMPARE(m_form->preview(), ExportForm::words(3, 10));
        QCOMPARE(m_form->text("txtStart"), u"3"_s);
        doubleClick(4);
        QCOMPARE(m_form->preview(), ExportForm::words(3, 7));
        QCOMPARE(m_form->text("txtEnd"), u"7"_s);
        doubleClick(4);
        QCOMPARE(m_form->text("txtStart"), u"7"_s);
        QCOMPARE(m_form->preview(), ExportForm::words(7, 7));
    }

    // The first click leaves the box, and the list moves under the mouse.
    void aDoubleClickAfterATypedNumberSetsTheWordThatWasClicked()
    {
        m_form->type("txtStart", u"5"_s);
        doubleClick(2);
        QCOMPARE(m_form->text("txtStart"), u"3"_s);
        QCOMPARE(m_form->preview(), ExportForm::words(3, 10));
        m_form->type("txtStart", u"5"_s);
        doubleClick(6);
        QCOMPARE(m_form->text("txtStart"), u"5"_s);
        QCOMPARE(m_form->text("txtEnd"), u"9"_s);
        QCOMPARE(m_form->preview(), ExportForm::words(5, 9));
    }

    void aClickInThePreviewLeavesTheBox()
    {
        m_form->type("txtStart", u"5"_s);
        QTest::mouseClick(m_form->control<QListWidget>("lstExportWords").viewport(),
                          Qt::LeftButton);
        QCOMPARE(Controls::focusedControl(), u"lstExportWords"_s);
        QCOMPARE(m_form->preview(), ExportForm::words(5, 10));
    }

    void withoutAFileNameTheNameBoxGetsTheKeyboard()
    {
        QVERIFY(!m_form->control<QLineEdit>("txtFilename").placeholderText().isEmpty());
        m_form->click("cmdOk");
        QVERIFY(m_form->dialog().isVisible());
        QVERIFY(m_form->control<QLineEdit>("txtFilename").hasFocus());
    }

    void aNameWithoutTheEndingIsNoted_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isNoted");
        QTest::newRow("no name") << QString() << false;
        QTest::newRow("blanks") << u"  "_s << false;
        QTest::newRow("ending") << u"/tmp/animals.lwx "_s << false;
        QTest::newRow("capitals") << u"/tmp/animals.LWX"_s << false;
        QTest::newRow("no ending") << u"/tmp/animals"_s << true;
        QTest::newRow("other ending") << u"/tmp/animals.dif"_s << true;
    }

    void aNameWithoutTheEndingIsNoted()
    {
        QFETCH(QString, name);
        m_form->type("txtFilename", name);
        const auto &note = m_form->control<StatusLabel>("lblEnding"); // its name is told
        QTEST(note.isVisible(), "isNoted");
        QTEST(note.accessibleName() == note.text(), "isNoted");
    }

    void equalNumbersShowNothingAfterTheStartBoxAndTheWordAfterTheEndBox()
    {
        m_form->typeAndLeave("txtEnd", u"4"_s);
        m_form->typeAndLeave("txtStart", u"4"_s);
        QCOMPARE(m_form->preview(), QStringList());
        m_form->typeAndLeave("txtEnd", u"4"_s);
        QCOMPARE(m_form->preview(), QStringList{u"w4"_s});
        m_form->typeAndLeave("txtStart", u"4"_s);
        QCOMPARE(m_form->preview(), QStringList());
    }

    void theOnlyWordIsShownOnlyAfterTheEndBox()
    {
        m_form.reset();
        m_form = std::make_unique<ExportForm>(1);
        QCOMPARE(m_form->text("txtStart"), u"1"_s);
        QCOMPARE(m_form->text("txtEnd"), u"1"_s);
        QCOMPARE(m_form->preview(), QStringList());
        m_form->typeAndLeave("txtEnd", u"1"_s);
        QCOMPARE(m_form->preview(), QStringList{u"w1"_s});
    }

    void aNumberIsBroughtIntoTheList_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("number");
        QTest::newRow("a number of the list") << u"4"_s << u"4"_s << 4;
        QTest::newRow("the first") << u"1"_s << u"1"_s << 1;
        QTest::newRow("the last") << u"10"_s << u"10"_s << 10;
        QTest::newRow("0") << u"0"_s << u"1"_s << 1;
        QTest::newRow("below 0") << u"-3"_s << u"1"_s << 1;
        QTest::newRow("the smallest") << u"-32768"_s << u"1"_s << 1;
        QTest::newRow("one too many") << u"11"_s << u"10"_s << 10;
        QTest::newRow("99") << u"99"_s << u"10"_s << 10;
        QTest::newRow("the largest") << u"32767"_s << u"10"_s << 10;
        QTest::newRow("outer blanks") << u"  4 "_s << u"  4 "_s << 4;
        QTest::newRow("leading zeros") << u"007"_s << u"007"_s << 7;
        QTest::newRow("a half to the even number below") << u"2.5"_s << u"2.5"_s << 2;
        QTest::newRow("a half to the even number above") << u"3.5"_s << u"3.5"_s << 4;
        QTest::newRow("less than a half") << u"3.49"_s << u"3.49"_s << 3;
        QTest::newRow("more than a half") << u"2.51"_s << u"2.51"_s << 3;
        QTest::newRow("a half that becomes 0") << u"0.5"_s << u"1"_s << 1;
        QTest::newRow("a half that becomes 10") << u"10.5"_s << u"10.5"_s << 10;
        QTest::newRow("a half that becomes 12") << u"11.5"_s << u"10"_s << 10;
        QTest::newRow("just not too large") << u"32767.49"_s << u"10"_s << 10;
        QTest::newRow("just not too small") << u"-32768.5"_s << u"1"_s << 1;
        QTest::newRow("with an exponent") << u"0.6E1"_s << u"0.6E1"_s << 6;
    }

    void aNumberIsBroughtIntoTheList()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(int, number);
        // After the end box the preview always shows the word.
        m_form->typeAndLeave("txtEnd", typed);
        QCOMPARE(m_form->text("txtEnd"), shown);
        QCOMPARE(m_form->preview(), ExportForm::words(1, number));
        m_form->typeAndLeave("txtEnd", number == 5 ? u"6"_s : u"5"_s);
        m_form->typeAndLeave("txtStart", typed);
        QCOMPARE(m_form->text("txtStart"), shown);
        QCOMPARE(m_form->preview(), ExportForm::words(number, number == 5 ? 6 : 5));
    }

    void whatIsNoNumberOfTheProgramIsReported_data()
    {
        const QString mismatch = u"Run-time error '13':\n\nType mismatch"_s;
        const QString overflow = u"Run-time error '6':\n\nOverflow"_s;
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("report");
        QTest::newRow("nothing") << QString() << mismatch;
        QTest::newRow("blanks") << u"   "_s << mismatch;
        QTest::newRow("a word") << u"three"_s << mismatch;
        QTest::newRow("a number and more") << u"3x"_s << mismatch;
        QTest::newRow("two numbers") << u"3 4"_s << mismatch;
        QTest::newRow("a sign") << u"-"_s << mismatch;
        QTest::newRow("two signs") << u"--3"_s << mismatch;
        QTest::newRow("two points") << u"1.2.3"_s << mismatch;
        QTest::newRow("infinity") << u"inf"_s << mismatch;
        QTest::newRow("no number by name") << u"nan"_s << mismatch;
        QTest::newRow("one too large") << u"32768"_s << overflow;
        QTest::newRow("a half too large") << u"32767.5"_s << overflow;
        QTest::newRow("one too small") << u"-32769"_s << overflow;
        QTest::newRow("far too large") << u"99999999999999999999"_s << overflow;
        QTest::newRow("far too small") << u"-1e300"_s << overflow;
    }

    void whatIsNoNumberOfTheProgramIsReported()
    {
        QFETCH(QString, typed);
        QFETCH(QString, report);
        m_form->chooseRange(3, 5);
        for (const char *box : {"txtStart", "txtEnd"}) {
            m_form->answers.expectMsgBox(report);
            m_form->typeAndLeave(box, typed);
            QVERIFY(m_form->answers.allSeen());
            QCOMPARE(m_form->text(box), typed);
            QCOMPARE(m_form->preview(), ExportForm::words(3, 5));
            QVERIFY(m_form->dialog().isVisible());
            m_form->typeAndLeave(box, qstrcmp(box, "txtStart") == 0 ? u"3"_s : u"5"_s);
        }
        QCOMPARE(m_form->preview(), ExportForm::words(3, 5));
    }

    void activatingAnotherWindowIsNotLeavingTheBox()
    {
        m_form->type("txtStart", u"three"_s);
        m_form->answers.cancelFileDialog();
        m_form->control<QPushButton>("cmdBrowse").click();
        QCOMPARE(m_form->answers.seen(), 1);
    }

    void browseOffersTheKindsOfFiles()
    {
        m_form->answers.chooseFile(m_form->path(u"new.lwx"_s), [](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Export words"_s);
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            const auto &kinds = Controls::find<QComboBox>(dialog, "fileTypeCombo");
            QCOMPARE(kinds.count(), 3);
            QCOMPARE(kinds.itemText(0), u"Vocab Data (*.lwx)"_s);
            QCOMPARE(kinds.itemText(1), u"Data Interchange Format (*.dif)"_s);
            QCOMPARE(kinds.itemText(2), u"All files (*.*)"_s);
            QCOMPARE(kinds.currentIndex(), 0);
        });
        m_form->click("cmdBrowse");
        // A file that does not exist may be chosen; it is not made yet.
        QCOMPARE(m_form->text("txtFilename"), m_form->path(u"new.lwx"_s));
        QVERIFY(!QFile::exists(m_form->path(u"new.lwx"_s)));
    }

    void browseCancelledEmptiesTheFileName_data()
    {
        QTest::addColumn<QString>("openedFile");
        QTest::newRow("a list file is open") << u"/lists/animals.lwx"_s;
        QTest::newRow("the list is untitled") << QString();
    }

    void browseCancelledEmptiesTheFileName()
    {
        QFETCH(QString, openedFile);
        gOpenedFile = openedFile;
        m_form->typeTarget(u"/lists/other.lwx"_s);
        m_form->answers.cancelFileDialog();
        m_form->click("cmdBrowse");
        QCOMPARE(m_form->text("txtFilename"), QString());
    }

    void theOpenListsFileIsRefused()
    {
        gOpenedFile = m_form->path(u"animals.lwx"_s);
        m_form->typeTarget(u"/lists/other.lwx"_s);
        m_form->answers.chooseFile(gOpenedFile);
        m_form->answers.expectMsgBox(
            gOpenedFile + u" file is currently in use."_s, QMessageBox::Ok, [](QMessageBox &box) {
                QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            });
        m_form->click("cmdBrowse");
        QCOMPARE(m_form->text("txtFilename"), u"/lists/other.lwx"_s);
    }

    void aNameThatDiffersInCaseIsAnotherFile()
    {
        gOpenedFile = m_form->path(u"animals.lwx"_s);
        m_form->answers.chooseFile(m_form->path(u"Animals.lwx"_s));
        m_form->click("cmdBrowse");
        QCOMPARE(m_form->text("txtFilename"), m_form->path(u"Animals.lwx"_s));
    }

    void theChosenFileIsOfferedAgainWithinOneOpening()
    {
        const QString target = m_form->path(u"other.lwx"_s);
        writeFile(target, {});
        m_form->answers.chooseFile(target, offered(QString()));
        m_form->click("cmdBrowse");
        m_form->answers.cancelFileDialog(offered(u"other.lwx"_s));
        m_form->click("cmdBrowse");
        QCOMPARE(m_form->text("txtFilename"), QString());
        m_form->answers.acceptFileDialog(offered(u"other.lwx"_s));
        m_form->click("cmdBrowse");
        QCOMPARE(m_form->text("txtFilename"), target);

        m_form->open();
        m_form->answers.cancelFileDialog(offered(QString()));
        m_form->click("cmdBrowse");
    }

    void cancelAndEscLeaveEverythingAsItWas_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Cancel") << false;
        QTest::newRow("Esc") << true;
    }

    void cancelAndEscLeaveEverythingAsItWas()
    {
        QFETCH(bool, byKey);
        gFileName = u"/lists/animals.lwx"_s;
        gChanged = true;
        const QString target = m_form->path(u"other.lwx"_s);
        m_form->typeTarget(target);
        if (byKey)
            Controls::press(Qt::Key_Escape);
        else
            m_form->click("cmdCancel");
        QVERIFY(!m_form->dialog().isVisible());
        QVERIFY(!QFile::exists(target));
        QCOMPARE(gFileName, u"/lists/animals.lwx"_s);
        QVERIFY(gChanged);
        QCOMPARE(wordsOf(gVocabList()), ExportForm::words(1, 10));
    }

    void escClosesWithoutAnErrorAboutTheTypedText()
    {
        m_form->type("txtStart", u"three"_s);
        Controls::press(Qt::Key_Escape);
        QVERIFY(!m_form->dialog().isVisible());
        QCOMPARE(m_form->answers.seen(), 0);
    }

private:
    // On the word that is in the row before the first click.
    void doubleClick(int row)
    {
        auto &words = m_form->control<QListWidget>("lstExportWords");
        const QPoint place = words.visualItemRect(words.item(row)).center();
        QTest::mouseClick(words.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(words.viewport(), Qt::LeftButton, {}, place);
    }

    // Checks the name that the file dialog offers.
    static std::function<void(QFileDialog &)> offered(const QString &name)
    {
        return [name](QFileDialog &dialog) {
            QCOMPARE(Controls::find<QLineEdit>(dialog, "fileNameEdit").text(), name);
        };
    }

    std::unique_ptr<ExportForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgExport_test>(argc, argv);
}

#include "dlgExport_test.moc"
