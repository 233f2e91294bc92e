// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/dlgGameOver.h"

#include "core/FreshState.h"
#include "game/Music.h"
#include "game/OpenDialog.h"
#include "game/SoundRequests.h"
#include "game/Top10File.h"
#include "game/Top10Rows.h"
#include "platform/Paths.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"

#include <QAction>
#include <QFileInfo>
#include <QScreen>

#include <memory>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

struct OverForm : OpenDialog
{
    using OpenDialog::OpenDialog;

    [[nodiscard]] QLineEdit &name() const { return Controls::find<QLineEdit>(form, "txtName"); }
    [[nodiscard]] QLabel &row(int row) const
    {
        return label(QByteArray("lblTop10_") + QByteArray::number(row));
    }
    [[nodiscard]] QStringList rows() const
    {
        QStringList texts;
        for (int i = 1; i <= 10; ++i)
            texts << row(i).text();
        return texts;
    }
    [[nodiscard]] QString title() const { return label("lblTitle").text(); }

    void typeName(const QString &text) const { insert(name(), text); }

    // The visible and enabled controls, and the default button.
    [[nodiscard]] QStringList state() const
    {
        QStringList state;
        for (const char *control : {"txtName", "cmdEnter", "cmdClose", "cmdReset"}) {
            const QWidget &widget = Controls::find<QWidget>(form, control);
            if (widget.isVisible() && widget.isEnabled())
                state += QLatin1String(control);
        }
        for (const char *control : {"cmdEnter", "cmdClose", "cmdReset"})
            if (button(control).isDefault())
                state += QLatin1String(control) + u" default"_s;
        return state;
    }
};

const QStringList Naming{u"txtName"_s, u"cmdEnter"_s, u"cmdEnter default"_s};
const QStringList Viewing{u"cmdClose"_s, u"cmdReset"_s, u"cmdClose default"_s};

// The expected texts of the rows.
QStringList rowTexts(const Top10Table &table)
{
    QStringList texts;
    for (const Top10Entry &entry : table)
        texts << (entry.Points == 0
                      ? QString()
                      : u"%1   %2 :   %3"_s.arg(dateText(entry.EntryDate), entry.Points.toText(),
                                                entry.PlayerName));
    return texts;
}

QByteArray fileBytes(Caller caller = Caller::current())
{
    return readFile(pathOf(Place::Top10), caller);
}

bool fileIsThere()
{
    return QFileInfo::exists(pathOf(Place::Top10));
}

double today()
{
    return double(QDate(1899, 12, 30).daysTo(QDate::currentDate()));
}

} // namespace

class dlgGameOver_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshState>();
        m_answers = std::make_unique<DialogAnswers>();
        gTop10 = emptyTop10(QDate(2020, 2, 1));
        gMusicOff = true;
        m_upbeat.setCheckable(true);
        m_upbeat.setChecked(false);
        m_music = std::make_unique<Music>(MusicMenu{m_upbeat, m_soothing, m_musicOff});
        m_sounds = std::make_unique<SoundRequests>();
    }

    void cleanup()
    {
        QVERIFY(m_answers->allSeen());
        m_sounds.reset();
        m_answers.reset();
        m_state.reset();
    }

    void aViewShowsTheUsedRowsOnly()
    {
        gTop10 = tableOf({30, 20, 10});
        gScore = 25;
        gViewTop10Only = true;
        show([](const OverForm &form) {
            QCOMPARE(form.title(), u"Did you make the Top 10 list?"_s);
            QCOMPARE(form.state(), Viewing);
            QCOMPARE(form.rows(), rowTexts(tableOf({30, 20, 10})));
            QCOMPARE(form.row(1).text(), dateText(QDate(2020, 1, 1)) + u"   30 :   Player 1"_s);
            QCOMPARE(form.row(4).text(), QString());
            QVERIFY(form.form.isModal());
            form.click("cmdClose");
        });
        QCOMPARE(fieldsOf(gTop10), fieldsOf(tableOf({30, 20, 10})));
        QVERIFY(!fileIsThere());
    }

    void aViewOfAnEmptyTableIsEmpty()
    {
        gScore = 25;
        gViewTop10Only = true;
        show([](const OverForm &form) {
            QCOMPARE(form.rows(), QStringList(10, QString()));
            QCOMPARE(form.state(), Viewing);
            form.click("cmdClose");
        });
        QCOMPARE(fieldsOf(gTop10), fieldsOf(emptyTop10(QDate(2020, 2, 1))));
    }

    void aScoreOfZeroIsOnlyAView_data()
    {
        QTest::addColumn<QList<int>>("points");
        QTest::newRow("empty table") << QList<int>{};
        QTest::newRow("free rows") << QList<int>{30, 20};
    }

    void aScoreOfZeroIsOnlyAView()
    {
        QFETCH(QList<int>, points);
        gTop10 = tableOf(points);
        show([&](const OverForm &form) {
            QCOMPARE(form.state(), Viewing);
            QCOMPARE(form.rows(), rowTexts(tableOf(points)));
            form.click("cmdClose");
        });
        QCOMPARE(fieldsOf(gTop10), fieldsOf(tableOf(points)));
    }

    void aScoreThatIsTooLowIsOnlyAView_data()
    {
        QTest::addColumn<int>("score");
        QTest::newRow("equal to row 10") << 10;
        QTest::newRow("below row 10") << 9;
    }

    void aScoreThatIsTooLowIsOnlyAView()
    {
        QFETCH(int, score);
        gTop10 = fullTable();
        gScore = score;
        show([](const OverForm &form) {
            QCOMPARE(form.state(), Viewing);
            QCOMPARE(form.rows(), rowTexts(fullTable()));
            form.click("cmdClose");
        });
        QCOMPARE(fieldsOf(gTop10), fieldsOf(fullTable()));
        QVERIFY(!fileIsThere());
    }

    void aScoreWaitsInItsRowForAName_data()
    {
        QTest::addColumn<int>("score");
        QTest::addColumn<int>("row");
        for (int row = 1; row <= 10; ++row)
            QTest::addRow("row %d", row) << 111 - 10 * row << row;
        QTest::newRow("equal to row 3") << 80 << 4;
    }

    void aScoreWaitsInItsRowForAName()
    {
        QFETCH(int, score);
        QFETCH(int, row);
        gTop10 = fullTable();
        gScore = score;
        QStringList expected = rowTexts(fullTable());
        expected.insert(row - 1, u"%1   %2 : "_s.arg(dateText(QDate::currentDate())).arg(score));
        expected.removeLast();
        show([&](const OverForm &form) {
            QCOMPARE(form.state(), Naming);
            QCOMPARE(form.rows(), expected);
            QCOMPARE(form.form.focusWidget(), &form.name());
            // The name box is where the name will be shown.
            const QRect label(form.row(row).mapTo(&form.form, QPoint()), form.row(row).size());
            const QRect box(form.name().mapTo(&form.form, QPoint()), form.name().size());
            QVERIFY(std::abs(label.center().y() - box.center().y()) < label.height() / 2);
            QVERIFY(box.left() >= label.right());
            form.typeName(u"Ann"_s);
            form.click("cmdEnter");
            expected[row - 1] = u"%1   %2 :   Ann"_s.arg(dateText(QDate::currentDate())).arg(score);
            QCOMPARE(form.rows(), expected);
            QCOMPARE(form.state(), Viewing);
            // The row is as wide as the others again.
            QTRY_COMPARE(form.row(row).width(), form.row(11 - row).width());
            form.click("cmdClose");
        });
        const Top10Table written = Top10File::read(pathOf(Place::Top10), {});
        QCOMPARE(fieldsOf(written), fieldsOf(gTop10));
        QCOMPARE(written[std::size_t(row - 1)].PlayerName, u"Ann"_s);
        QCOMPARE(written[std::size_t(row - 1)].EntryDate, QDate::currentDate());
    }

    void theFirstScoreBeginsTheTable()
    {
        gScore = 7;
        show([](const OverForm &form) {
            form.typeName(u"Ann"_s);
            form.click("cmdEnter");
            QCOMPARE(form.row(1).text(), dateText(QDate::currentDate()) + u"   7 :   Ann"_s);
            QCOMPARE(form.rows().count(QString()), 9);
            form.click("cmdClose");
        });
        QCOMPARE(fileBytes(), fileRow(today(), "Ann", 7) + fileRow(today(), "", 0).repeated(9));
        QCOMPARE(fileBytes().size(), 123);
    }

    void namesAreTrimmed_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("name");
        QTest::newRow("blanks round it") << u"  Ann B. "_s << u"Ann B."_s;
        QTest::newRow("empty") << u""_s << u""_s;
        QTest::newRow("only blanks") << u"   "_s << u""_s;
        QTest::newRow("accents") << u"Zoë"_s << u"Zoë"_s;
        QTest::newRow("signs") << u"<b>A&B</b> : 9"_s << u"<b>A&B</b> : 9"_s;
    }

    void namesAreTrimmed()
    {
        QFETCH(QString, typed);
        QFETCH(QString, name);
        gScore = 7;
        show([&](const OverForm &form) {
            form.typeName(typed);
            QCOMPARE(form.name().text(), typed);
            form.click("cmdEnter");
            QCOMPARE(form.row(1).text(), dateText(QDate::currentDate()) + u"   7 :   "_s + name);
            QCOMPARE(form.row(1).textFormat(), Qt::PlainText);
            QCOMPARE(form.row(1).toolTip(), Qt::convertFromPlainText(form.row(1).text()));
            form.click("cmdClose");
        });
        QCOMPARE(gTop10[0].PlayerName, name);
        QCOMPARE(Top10File::read(pathOf(Place::Top10), {})[0].PlayerName, name);
    }

    void enterStoresTheNameAndThenCloses_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
    }

    void enterStoresTheNameAndThenCloses()
    {
        QFETCH(Qt::Key, key);
        gScore = 7;
        show([&](const OverForm &form) {
            QTest::keyClicks(form.form.focusWidget(), u"Ann"_s);
            form.press(key);
            QVERIFY(form.form.isVisible());
            QCOMPARE(form.state(), Viewing);
            QVERIFY(form.row(1).text().endsWith(u":   Ann"_s));
            QCOMPARE(form.form.focusWidget(), &form.button("cmdClose"));
            form.press(key);
            QVERIFY(!form.form.isVisible());
        });
        QCOMPARE(gTop10[0].PlayerName, u"Ann"_s);
    }

    void theNameBoxGetsTheFocusWhenTheDialogIsActivated()
    {
        gScore = 7;
        show([](const OverForm &form) {
            form.button("cmdEnter").setFocus();
            QEvent activated(QEvent::WindowActivate);
            QApplication::sendEvent(&form.form, &activated);
            QCOMPARE(form.form.focusWidget(), &form.name());
            form.click("cmdEnter");
            form.click("cmdClose");
        });
    }

    void aVisibleControlHasTheFocus()
    {
        gTop10 = tableOf({30});
        show([this](const OverForm &form) {
            QCOMPARE(QApplication::focusWidget(), &form.button("cmdClose"));
            m_answers->escapeMsgBox(u"Are you sure you want to reset the scores?"_s);
            form.press(Qt::Key_R, Qt::AltModifier);
            QTRY_COMPARE(m_answers->seen(), 2);
            QVERIFY(QTest::qWaitForWindowActive(&form.form));
            QVERIFY(QApplication::focusWidget() && QApplication::focusWidget()->isVisible());
            form.press(Qt::Key_C, Qt::AltModifier);
            QTRY_VERIFY(!form.form.isVisible());
        });
    }

    void resetAsksFirst_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("Yes") << int(QMessageBox::Yes);
        QTest::newRow("No") << int(QMessageBox::No);
    }

    void resetAsksFirst()
    {
        QFETCH(int, answer);
        const bool yes = answer == QMessageBox::Yes;
        gTop10 = tableOf({30, 20});
        const QByteArray before = Top10File::encode(gTop10);
        Top10File::write(pathOf(Place::Top10), gTop10);
        show([&](const OverForm &form) {
            m_answers->expectMsgBox(u"Are you sure you want to reset the scores?"_s,
                                    QMessageBox::StandardButton(answer), [](QMessageBox &box) {
                                        QCOMPARE(box.standardButtons(),
                                                 QMessageBox::Yes | QMessageBox::No);
                                    });
            form.click("cmdReset");
            QCOMPARE(form.rows(), yes ? QStringList(10, QString()) : rowTexts(tableOf({30, 20})));
            QCOMPARE(form.state().first(2), Viewing.first(2));
            form.click("cmdClose");
        });
        QByteArray reset = fileRow(43831, "", 0) + fileRow(43832, "", 0);
        reset += fileRow(43862, "", 0).repeated(8);
        // The file is not truncated: the bytes of the longer old table stay at its end.
        QCOMPARE(fileBytes(), yes ? reset + before.last(before.size() - reset.size()) : before);
        QCOMPARE(gTop10[0].EntryDate, QDate(2020, 1, 1));
        QCOMPARE(gTop10[0].Points, Integer(yes ? 0 : 30));
    }

    void aNewScoreCanBeResetOnceItHasItsName()
    {
        gScore = 7;
        show([this](const OverForm &form) {
            QVERIFY(!form.button("cmdReset").isEnabled());
            form.typeName(u"Ann"_s);
            form.click("cmdEnter");
            m_answers->expectMsgBox(u"Are you sure you want to reset the scores?"_s,
                                    QMessageBox::Yes);
            form.click("cmdReset");
            QCOMPARE(form.rows(), QStringList(10, QString()));
            form.click("cmdClose");
        });
        QVERIFY(fileBytes().startsWith(fileRow(today(), "", 0).repeated(10)));
    }

    void closeSetsTheScoreToZeroAndTheCloseBoxDoesNot_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("score");
        QTest::newRow("Close") << u"cmdClose"_s << 0;
        QTest::newRow("close box") << u"box"_s << 5;
        QTest::newRow("Esc") << u"esc"_s << 5;
    }

    void closeSetsTheScoreToZeroAndTheCloseBoxDoesNot()
    {
        QFETCH(QString, way);
        QFETCH(int, score);
        gTop10 = fullTable();
        gScore = 5;
        show([&](const OverForm &form) { leave(form, way); });
        QCOMPARE(gScore, Integer(score));
    }

    void aScoreEntersTheTableOnce_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("named");
        QTest::newRow("named, Close") << u"cmdClose"_s << true;
        QTest::newRow("named, close box") << u"box"_s << true;
        QTest::newRow("named, Esc") << u"esc"_s << true;
        QTest::newRow("nameless, close box") << u"box"_s << false;
        QTest::newRow("nameless, Esc") << u"esc"_s << false;
    }

    void aScoreEntersTheTableOnce()
    {
        QFETCH(QString, way);
        QFETCH(bool, named);
        gScore = 7;
        show([&](const OverForm &form) {
            form.typeName(u"Ann"_s);
            if (named)
                form.click("cmdEnter");
            QCOMPARE(gScore, Integer(7));
            leave(form, way);
        });
        QCOMPARE(gScore, Integer(0));
        const QStringList once = fieldsOf(gTop10);
        QCOMPARE(gTop10[0].PlayerName, named ? u"Ann"_s : QString());
        show([](const OverForm &form) {
            QCOMPARE(form.state(), Viewing);
            form.click("cmdClose");
        });
        QCOMPARE(fieldsOf(gTop10), once);
    }

    void theViewInAGameSaysWhatCloseDoes_data()
    {
        QTest::addColumn<int>("score");
        QTest::addColumn<bool>("viewOnly");
        QTest::addColumn<bool>("says");
        QTest::newRow("points in a game") << 5 << true << true;
        QTest::newRow("no points yet") << 0 << true << false;
        QTest::newRow("too few points at the end") << 5 << false << false;
        QTest::newRow("a place at the end") << 500 << false << false;
    }

    void theViewInAGameSaysWhatCloseDoes()
    {
        QFETCH(int, score);
        QFETCH(bool, viewOnly);
        QFETCH(bool, says);
        gTop10 = fullTable();
        gScore = score;
        gViewTop10Only = viewOnly;
        show([&](const OverForm &form) {
            const QLabel &hint = form.label("lblHint");
            QCOMPARE(hint.isVisible() &&
                         hint.text() ==
                             u"Close ends this game's points; Esc goes back to the game"_s,
                     says);
            leave(form, u"esc"_s);
        });
        QCOMPARE(gScore, Integer(score == 500 ? 0 : score));
    }

    void theMusicEndsWithIt_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("Close") << u"cmdClose"_s;
        QTest::newRow("close box") << u"box"_s;
        QTest::newRow("Esc") << u"esc"_s;
    }

    void theMusicEndsWithIt()
    {
        QFETCH(QString, way);
        gMusicOff = false;
        show([&](const OverForm &form) {
            QCOMPARE(m_sounds->take(), QStringList());
            leave(form, way);
        });
        QCOMPARE(m_sounds->take(), QStringList{u"NULL 0"_s});
        QVERIFY(gMusicOff);
    }

    void withMusicOffNothingIsAskedFor()
    {
        show([](const OverForm &form) { form.click("cmdClose"); });
        QCOMPARE(m_sounds->take(), QStringList());
        QVERIFY(gMusicOff);
    }

    void theTitleCanBeAnother()
    {
        const QString goodBye = u"Good bye. Thank you for playing The Tanglewit!!!"_s;
        m_answers->useForm("dlgGameOver", [&](QDialog &dialog) {
            QCOMPARE(OverForm(dialog).title(), goodBye);
            OverForm(dialog).click("cmdClose");
        });
        dlgGameOver dialog(*m_music, nullptr);
        dialog.setTitle(goodBye);
        dialog.exec();
    }

    void aRowWithoutANameIsSavedWithTheNextWrite_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("close box") << u"box"_s;
        QTest::newRow("Esc") << u"esc"_s;
    }

    void aRowWithoutANameIsSavedWithTheNextWrite()
    {
        QFETCH(QString, way);
        gScore = 7;
        show([&](const OverForm &form) {
            form.typeName(u"Ann"_s);
            leave(form, way);
        });
        QCOMPARE(gTop10[0].PlayerName, QString());
        QCOMPARE(gTop10[0].Points, Integer(7));
        QVERIFY(!fileIsThere());

        gScore = 9;
        show([](const OverForm &form) {
            QVERIFY(form.row(2).text().endsWith(u"   7 :   "_s));
            form.typeName(u"Bob"_s);
            form.click("cmdEnter");
            form.click("cmdClose");
        });
        QVERIFY(fileBytes().startsWith(fileRow(today(), "Bob", 9) + fileRow(today(), "", 7)));
    }

    void aFileThatCannotBeWrittenIsReportedAndTheDialogCanBeLeft_data() { theCloseBoxes(); }

    void aFileThatCannotBeWrittenIsReportedAndTheDialogCanBeLeft()
    {
        QFETCH(QString, way);
        const QString path = pathOf(Place::Top10);
        QVERIFY(QDir().mkdir(path));
        gScore = 7;
        gMusicOff = false;
        show([&](const OverForm &form) {
            expectPathError();
            form.typeName(u"Ann"_s);
            form.click("cmdEnter");
            QVERIFY(form.form.isVisible());
            leave(form, way);
        });
        QCOMPARE(m_sounds->take(), QStringList{u"NULL 0"_s});
        QCOMPARE(gTop10[0].Points, Integer(7));
        QCOMPARE(gTop10[0].PlayerName, u"Ann"_s);
        QVERIFY(QFileInfo(path).isDir());
    }

    void aNameCanBeStoredAgainOnceTheFileCanBeWritten()
    {
        const QString path = pathOf(Place::Top10);
        QVERIFY(QDir().mkdir(path));
        gScore = 7;
        show([&](const OverForm &form) {
            expectPathError();
            form.typeName(u"Ann"_s);
            form.click("cmdEnter");
            QVERIFY(QDir().rmdir(path));
            form.click("cmdEnter");
            QCOMPARE(form.state(), Viewing);
            form.click("cmdClose");
        });
        QVERIFY(fileBytes().startsWith(fileRow(today(), "Ann", 7)));
    }

    void aResetThatCannotBeWrittenIsReported()
    {
        QVERIFY(QDir().mkdir(pathOf(Place::Top10)));
        gTop10 = tableOf({30});
        show([this](const OverForm &form) {
            m_answers->expectMsgBox(u"Are you sure you want to reset the scores?"_s,
                                    QMessageBox::Yes);
            expectPathError();
            form.click("cmdReset");
            QCOMPARE(form.rows(), QStringList(10, QString()));
            form.click("cmdClose");
            QVERIFY(!form.form.isVisible());
        });
        QCOMPARE(gTop10[0].EntryDate, QDate(2020, 1, 1));
    }

    void rowsOfADamagedFileAreShown()
    {
        gTop10 = tableOf({30, 20});
        gTop10[0] = {QDate(), u"Ann"_s, 30};
        gTop10[1].Points = -5;
        show([](const OverForm &form) {
            QCOMPARE(form.row(1).text(), u"   30 :   Ann"_s);
            QCOMPARE(form.row(2).text(), dateText(QDate(2020, 1, 2)) + u"   -5 :   Player 2"_s);
            form.click("cmdClose");
        });
    }

    void longNamesLeaveTheDialogAsItIs()
    {
        QSize usual;
        gTop10 = fullTable();
        show([&](const OverForm &form) {
            usual = form.form.size();
            form.click("cmdClose");
        });
        for (Top10Entry &entry : gTop10)
            entry.PlayerName = QString(60'000, u'W');
        show([&](const OverForm &form) {
            QCOMPARE(form.form.size(), usual);
            QVERIFY(form.form.screen()->availableSize().height() >= usual.height());
            for (int row = 1; row <= 10; ++row)
                QVERIFY(form.form.rect().contains(
                    QRect(form.row(row).mapTo(&form.form, QPoint()), form.row(row).size())));
            form.click("cmdClose");
        });
    }

private:
    static void theCloseBoxes()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("close box") << u"box"_s;
        QTest::newRow("Esc") << u"esc"_s;
    }

    static void leave(const OverForm &form, const QString &way)
    {
        if (way == u"box"_s)
            form.form.close();
        else if (way == u"esc"_s)
            form.press(Qt::Key_Escape);
        else
            form.click(way.toLatin1().constData());
        QVERIFY(!form.form.isVisible());
    }

    void expectPathError()
    {
        m_answers->expectAnyMsgBox(QMessageBox::Ok, [](QMessageBox &box) {
            const QString report = u"Run-time error '75':\n\nPath/File access error\n"_s;
            QVERIFY2(box.text().startsWith(report + pathOf(Place::Top10)), qPrintable(box.text()));
        });
    }

    // Opens the dialog and calls `use`, which must close it.
    void show(const std::function<void(const OverForm &)> &use)
    {
        m_answers->useForm("dlgGameOver", [use](QDialog &dialog) {
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            use(OverForm(dialog));
        });
        dlgGameOver(*m_music, nullptr).exec();
    }

    QAction m_upbeat;
    QAction m_soothing;
    QAction m_musicOff;
    std::unique_ptr<FreshState> m_state;
    std::unique_ptr<DialogAnswers> m_answers;
    std::unique_ptr<Music> m_music;
    std::unique_ptr<SoundRequests> m_sounds;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgGameOver_test>(argc, argv);
}

#include "dlgGameOver_test.moc"
