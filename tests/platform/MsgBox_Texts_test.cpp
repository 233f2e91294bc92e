// SPDX-License-Identifier: GPL-3.0-or-later
// All message texts of the program, with short and very long values: the box shows the whole text
// and fits on the screen.
#include "platform/MsgBox.h"

#include "runtime/RunTimeError.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"
#include "support/PaintedLines.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

using namespace PaintedLines;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(MsgBoxButtons)

namespace {

struct Said
{
    const char *name;
    QString text; // %1 = the value
    MsgBoxButtons buttons = MsgBoxButtons::OkOnly;
};

QList<Said> allTexts()
{
    using enum MsgBoxButtons;
    const auto text = [](const char *letters) { return QString::fromLatin1(letters); };
    const auto failure = [](int number) {
        return RunTimeError(RunTimeError::Number(number), u"%1: No such thing"_s).report();
    };
    return {
        {"changes at the end", text("Your changes have not been saved.  Do you want to save them?"),
         YesNo},
        {"saved", text("%1 has been saved.")},
        {"lesson", text("End current lesson?"), OkCancel},
        {"changes, three answers", text("Do you want to save changes?"), YesNoCancel},
        {"changes, two answers", text("Do you want to save changes?"), YesNo},
        {"full", text("Cannot add any more words. Maximum number of words= %1")},
        {"duplicate", text("Word already exist.  Add word anyway?"), YesNo},
        {"nothing picked", text("Please select a word to delete or execute a search first.")},
        {"delete", text("Are you sure you want to delete '%1' ?"), YesNo},
        {"nothing to delete", text("Cannot delete: Your current wordlist is empty.")},
        {"not found", text("%1 is not in the list.")},
        {"empty", text("Your current wordlist is empty")},
        {"nothing to export", text("Cannot export: Your current wordlist is empty")},
        {"no text file", text("File not created: Your current wordlist is empty.")},
        {"nothing to print", text("Not printed: Your current wordlist is empty.")},
        {"printer", text("%1 has encountered an error")},
        {"in use", text("%1 file is currently in use.")},
        {"bad name", text("Invalid file name.")},
        {"exported", text("12 words has been added to %1")},
        {"imported", text("%1 words imported")},
        {"added", text("%1 words added")},
        {"one more refused", text("1 more word has not been added.")},
        {"more refused", text("%1 more words have not been added.")},
        {"import full", text("Cannot import any more words. Maximum number of words=%1")},
        {"import too many", text("Cannot import words because this will exceed maximum number of "
                                 "words. Maximum number of words=%1")},
        {"search ended", text("Search ended. No more words found.")},
        {"change", text("Are you sure you want to change the content of this word?"), OkCancel},
        {"reset", text("Are you sure you want to reset the scores?"), YesNo},
        {"level", text("Level %1")},
        {"answer", text("The correct word is: '%1'")},
        {"nothing scrambled", text("Result=0")},
        {"running", text("The Tanglewit(c) is already running.")},
        {"unknown", text("The command has ended by an unknown error.")},
        {"error 5", failure(5)},
        {"error 6", failure(6)},
        {"error 7", failure(7)},
        {"error 9", failure(9)},
        {"error 13", failure(13)},
        {"error 52", failure(52)},
        {"error 53", failure(53)},
        {"error 57", failure(57)},
        {"error 61", failure(61)},
        {"error 61, the file damaged",
         failure(61) + text(". The old content could not be put back")},
        {"error 67", failure(67)},
        {"error 70", failure(70)},
        {"error 75", failure(75)},
        {"error 76", failure(76)},
        {"error 321", failure(321)},
        {"error 482", failure(482)},
    };
}

QString path(int folders)
{
    return u"/home/anna/Documents"_s + u"/French_words_for_the_journey"_s.repeated(folders) +
           u".lwx"_s;
}

QString withoutBreaks(QString text)
{
    text.remove(u' ');
    return text.remove(u'\n');
}

} // namespace

class MsgBox_Texts_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWholeTextIsSeenOnTheScreen_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<MsgBoxButtons>("buttons");
        QTest::addColumn<bool>("mayScroll");
        const auto rows = [](const Said &said, const char *value, const QString &name,
                             bool mayScroll) {
            if (said.text.contains(u"%1"_s))
                QTest::addRow("%s, %s", said.name, value)
                    << said.text.arg(name) << said.buttons << mayScroll;
        };
        const QList<Said> texts = allTexts();
        for (const Said &said : texts) {
            if (!said.text.contains(u"%1"_s))
                QTest::addRow("%s", said.name) << said.text << said.buttons << false;
            rows(said, "short", u"5"_s, false);
            rows(said, "a path", path(3), false);
            rows(said, "a long path", path(12), false);
            rows(said, "no blank", QString(500, u'm'), false);
        }
        const auto ofAWord = std::find_if(texts.begin(), texts.end(), [](const Said &said) {
            return qstrcmp(said.name, "delete") == 0;
        });
        rows(*ofAWord, "the longest", QString(32767, u'm'), true);
    }

    void theWholeTextIsSeenOnTheScreen()
    {
        QFETCH(QString, text);
        QFETCH(MsgBoxButtons, buttons);
        QFETCH(bool, mayScroll);
        DialogAnswers answers;
        const auto last = buttons == MsgBoxButtons::OkOnly  ? QMessageBox::Ok
                          : buttons == MsgBoxButtons::YesNo ? QMessageBox::No
                                                            : QMessageBox::Cancel;
        answers.expectMsgBox(text, last, [&](QMessageBox &box) {
            seeText(box, text);
            seeBox(box, mayScroll);
        });
        MsgBox(text, buttons);
        QVERIFY(answers.allSeen());
    }

private:
    // The label paints the whole text, and inside its own area.
    static void seeText(const QMessageBox &box, const QString &text)
    {
        auto *label = box.findChild<QLabel *>(u"lblText"_s);
        QVERIFY(label && label->isVisible());
        QCOMPARE(label->text(), text);
        const QList<Line> lines = paintedLines(*label);
        QCOMPARE(withoutBreaks(joined(lines)), withoutBreaks(text));
        const QFontMetricsF metrics(label->font());
        for (const Line &line : lines) {
            QVERIFY(line.left >= 0);
            QVERIFY(line.left + metrics.horizontalAdvance(line.text.trimmed()) <=
                    label->width() + 1);
            QVERIFY(line.top - metrics.ascent() >= -1);
            QVERIFY(line.top + metrics.descent() <= label->height() + 1);
        }
    }

    // The text is visible or can be scrolled into view, the box is on the screen, and its margins
    // are equal.
    static void seeBox(const QMessageBox &box, bool mayScroll)
    {
        const auto &area = *box.findChild<QScrollArea *>();
        const auto &buttons = *box.findChild<QDialogButtonBox *>();
        QCOMPARE(area.widget()->width(), area.viewport()->width());
        QCOMPARE(area.verticalScrollBar()->maximum(),
                 std::max(0, area.widget()->height() - area.viewport()->height()));
        QVERIFY2(
            area.verticalScrollBar()->maximum() == 0 || mayScroll,
            qPrintable(u"%1 in %2"_s.arg(area.widget()->height()).arg(area.viewport()->height())));
        QVERIFY2(box.screen()->availableGeometry().contains(box.frameGeometry()),
                 qPrintable(u"%1 by %2"_s.arg(box.width()).arg(box.height())));
        const int margin = area.x();
        QVERIFY(margin >= 16);
        QCOMPARE(area.y(), margin);
        QCOMPARE(box.width() - area.geometry().right() - 1, margin);
        QCOMPARE(box.height() - buttons.geometry().bottom() - 1, margin);
        QVERIFY(buttons.y() > area.geometry().bottom());
        QVERIFY(buttons.x() >= margin);
        QVERIFY(buttons.geometry().right() < box.width() - margin);
        for (const QAbstractButton *button : buttons.buttons())
            QVERIFY(buttons.rect().contains(button->geometry()));
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<MsgBox_Texts_test>(argc, argv);
}

#include "MsgBox_Texts_test.moc"
