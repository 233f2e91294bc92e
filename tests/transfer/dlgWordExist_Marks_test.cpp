// SPDX-License-Identifier: GPL-3.0-or-later
// What the dialog about an existing word marks and says beside its texts.
#include "platform/OneLineBox.h"
#include "platform/QuietLabel.h"
#include "support/Contrast.h"
#include "support/LargeType.h"
#include "transfer/WordExistForm.h"

#include <QTextBlock>

using namespace ImportTools;
using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

bool isDifference(const QTextCharFormat &format)
{
    return format.underlineStyle() == QTextCharFormat::SingleUnderline &&
           format.background() != QBrush();
}

QStringList marksOf(const OneLineBox &box)
{
    QStringList texts;
    const auto marks = box.marks();
    for (const QTextLayout::FormatRange &mark : marks)
        if (isDifference(mark.format))
            texts += box.text().mid(mark.start, mark.length);
    return texts;
}

QStringList marksOf(const EntryTextBox &box)
{
    QStringList texts;
    const auto marks = box.extraSelections();
    for (const QTextEdit::ExtraSelection &mark : marks)
        if (isDifference(mark.format))
            texts += mark.cursor.selectedText();
    return texts;
}

// Word, definition and sentence; the marked parts of one text are separated by '/'.
QStringList marks(const WordExistForm &form, const QByteArray &prefix)
{
    const QChar separator = u'/';
    return {marksOf(Controls::find<OneLineBox>(form.form, prefix + "Word")).join(separator),
            marksOf(Controls::find<EntryTextBox>(form.form, prefix + "Def")).join(separator),
            marksOf(Controls::find<EntryTextBox>(form.form, prefix + "Sen")).join(separator)};
}

QString quietLine(const WordExistForm &form)
{
    return Controls::find<QuietLabel>(form.form, "lblQuiet").text();
}

const QStringList Nothing{QString(), QString(), QString()};

} // namespace

class dlgWordExist_Marks_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshState>();
        m_answers = std::make_unique<DialogAnswers>();
        setOpenEntries({u"dog|a pet"_s, u"Glacier|a slow river\r\nof ice|The glacier moves."_s,
                        u"glacier|a mass\r\nof ice"_s});
    }

    void cleanup()
    {
        QVERIFY(m_answers->allSeen());
        m_answers.reset();
        m_state.reset();
    }

    void whereTheEntriesDifferBothSidesAreMarked()
    {
        ask([](const WordExistForm &form) {
            QCOMPARE(marks(form, "txtImport"), (QStringList{u"glacier"_s, u"mass"_s, u"melts."_s}));
            QCOMPARE(marks(form, "txtCur"),
                     (QStringList{u"Glacier"_s, u"slow river"_s, u"moves."_s}));
            form.click("cmdFindNext");
            QCOMPARE(marks(form, "txtImport"), (QStringList{{}, {}, u"The glacier melts."_s}));
            QCOMPARE(marks(form, "txtCur"), Nothing);
            form.close();
        });
    }

    void theMarksFollowWhatIsTypedAndChangeNoText()
    {
        ask([](const WordExistForm &form) {
            form.click("cmdAllowModify");
            const auto &box = Controls::find<EntryTextBox>(form.form, "txtCurDef");
            QVERIFY(!box.document()->isUndoAvailable());
            QCOMPARE(box.text(), u"a slow river\r\nof ice"_s);
            form.type("txtCurDef", u"a mass"_s);
            QCOMPARE(marks(form, "txtCur")[1], QString());
            QCOMPARE(marks(form, "txtImport")[1], u"of ice"_s);
            form.type("txtCurWord", u"glacier"_s);
            QCOMPARE(marks(form, "txtCur")[0], QString());
            QCOMPARE(marks(form, "txtImport")[0], QString());
            QTest::keyClick(&Controls::find<OneLineBox>(form.form, "txtCurWord"), Qt::Key_Z,
                            Qt::ControlModifier);
            QCOMPARE(marks(form, "txtCur")[0], u"Glacier"_s);
            form.close();
        });
    }

    void afterADeletionNothingIsMarked()
    {
        ask([this](const WordExistForm &form) {
            m_answers->expectMsgBox(u"Are you sure you want to delete 'glacier' ?"_s,
                                    QMessageBox::Yes);
            form.click("cmdDelete");
            QCOMPARE(marks(form, "txtImport"), Nothing);
            QCOMPARE(marks(form, "txtCur"), Nothing);
            form.close();
        });
    }

    void markedTextsCanBeRead_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << Contrast::lightPalette();
        QTest::newRow("dark") << Contrast::darkPalette();
    }

    void markedTextsCanBeRead()
    {
        QFETCH(QPalette, palette);
        const QPalette before = QApplication::palette();
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        ask([](const WordExistForm &form) {
            for (const bool isLocked : {true, false}) {
                if (!isLocked)
                    form.click("cmdAllowModify");
                form.button("cmdYes").setFocus(); // no cursor in the pictures
                for (const char *name : {"txtImportDef", "txtCurDef"}) {
                    auto &box = Controls::find<EntryTextBox>(form.form, name);
                    const QImage text = markedPart(box);
                    const Contrast::Seen seen(text);
                    QVERIFY2(seen.contrastOfInk() >= Contrast::ReadableText,
                             qPrintable(seen.text()));
                    const QColor paper = box.grab().toImage().pixelColor(box.rect().center());
                    const QColor line = differenceFormat(box.palette()).underlineColor();
                    QVERIFY(seen.paper != paper);
                    QVERIFY(Contrast::contrast(line, paper) >= Contrast::ReadableMark);
                }
            }
            form.close();
        });
        QApplication::setPalette(before);
    }

    void lostCharactersAreNamedWhileTheEntryIsEdited()
    {
        setOpenEntries({u"Glacier|\u0142"_s});
        ask([this](const WordExistForm &form) {
            QCOMPARE(quietLine(form), QString());
            form.click("cmdAllowModify");
            QCOMPARE(quietLine(form), u"This list cannot keep: \u0142"_s);
            auto &word = Controls::find<OneLineBox>(form.form, "txtCurWord");
            word.setText(u"\u6F22"_s);
            QCOMPARE(quietLine(form), u"This list cannot keep: \u6F22, \u0142"_s);
            QVERIFY(std::ranges::any_of(word.marks(), [](const auto &mark) {
                return mark.format.underlineStyle() == QTextCharFormat::WaveUnderline;
            }));
            form.type("txtCurDef", u"l"_s);
            QCOMPARE(quietLine(form), u"This list cannot keep: \u6F22"_s);
            m_answers->expectMsgBox(u"Are you sure you want to delete 'glacier' ?"_s,
                                    QMessageBox::Yes);
            form.click("cmdDelete");
            word.setText(u"\u6F22"_s); // goes into no entry
            QCOMPARE(quietLine(form), QString());
            form.close();
        });
    }

    void theQuestionsTypeFollowsTheApplications()
    {
        int usual = 0;
        for (const double type : {1.0, 1.5}) {
            const LargeType font(type);
            ask([&usual, type](const WordExistForm &form) {
                const auto &question = Controls::find<QLabel>(form.form, "lblWordExist");
                const int size = QFontInfo(question.font()).pixelSize();
                if (type == 1)
                    usual = size;
                else
                    QVERIFY2(size >= usual * 1.3, qPrintable(QString::number(size)));
                QVERIFY(question.font().bold());
                QVERIFY(size >= QFontInfo(QApplication::font()).pixelSize() * 1.2);
                form.close();
            });
        }
    }

private:
    // The first marked part as it is painted.
    static QImage markedPart(EntryTextBox &box)
    {
        for (const QTextEdit::ExtraSelection &mark : box.extraSelections()) {
            QTextCursor start = mark.cursor;
            start.setPosition(mark.cursor.selectionStart());
            QTextCursor end = mark.cursor;
            end.setPosition(mark.cursor.selectionEnd());
            const QRect first = box.cursorRect(start);
            const QRect last = box.cursorRect(end);
            return box.viewport()->grab({first.topLeft(), last.bottomLeft()}).toImage();
        }
        return {};
    }

    void ask(const std::function<void(const WordExistForm &)> &use)
    {
        WordExistQuestion(u"glacier|a mass\r\nof ice|The glacier melts."_s).ask(*m_answers, use);
    }

    std::unique_ptr<FreshState> m_state;
    std::unique_ptr<DialogAnswers> m_answers;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgWordExist_Marks_test>(argc, argv);
}

#include "dlgWordExist_Marks_test.moc"
