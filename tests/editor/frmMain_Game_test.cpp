// SPDX-License-Identifier: GPL-3.0-or-later
// The main window before, during and after the game, and its Music menu.
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/MainWindow.h"
#include "game/frmTanglewit.h"
#include "platform/sndPlaySoundA.h"
#include "support/FormTest.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString Track1 = u"fastbeat/Track01.wav 9"_s;
const QString Silence = u"NULL 0"_s;

// Counts the visible ones of two windows each time one of them is hidden.
class WindowsInSight final : public QObject
{
public:
    WindowsInSight(QWidget &one, QWidget &other) : m_windows{&one, &other}
    {
        for (QWidget *window : m_windows)
            window->installEventFilter(this);
    }
    [[nodiscard]] int fewest() const { return m_fewest; }

protected:
    bool eventFilter(QObject * /*window*/, QEvent *event) override
    {
        if (event->type() == QEvent::Hide)
            m_fewest = std::min(m_fewest, int(std::count_if(m_windows.begin(), m_windows.end(),
                                                            std::mem_fn(&QWidget::isVisible))));
        return false;
    }

private:
    std::array<QWidget *, 2> m_windows;
    int m_fewest = 2;
};

} // namespace

class frmMain_Game_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        setSoundPlayer([this](const QString &file, unsigned flags) {
            const QFileInfo track(file);
            const QString name =
                file.contains(u'/') ? track.dir().dirName() + u'/' + track.fileName() : file;
            m_sounds += u"%1 %2"_s.arg(name).arg(flags);
        });
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
        setSoundPlayer({});
        m_sounds.clear();
    }

    void anEmptyListIsNotPlayed_data()
    {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("button") << false;
        QTest::newRow("menu") << true;
    }

    void anEmptyListIsNotPlayed()
    {
        QFETCH(bool, byMenu);
        m_main->answers.expectMsgBox(
            u"Your current wordlist is empty"_s, QMessageBox::Ok, [](QMessageBox &box) {
                QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            });
        choosePlay(byMenu);
        QVERIFY(m_main->answers.allSeen());
        QVERIFY(m_main->window().isVisible());
        QVERIFY(!openGame());
    }

    void theMainWindowIsHiddenDuringTheGame_data() { anEmptyListIsNotPlayed_data(); }

    void theMainWindowIsHiddenDuringTheGame()
    {
        QFETCH(bool, byMenu);
        m_main->fill(3);
        choosePlay(byMenu);
        QVERIFY(!m_main->window().isVisible());
        QVERIFY(openGame());
        QVERIFY(!openGame()->isModal());
        QVERIFY(openGame()->isWindow());
        QCOMPARE(gOrderSize, Integer(3));
        QVERIFY(button("cmdStart").isVisible());
    }

    void thereIsAlwaysAWindowInSight()
    {
        m_main->fill(3);
        play();
        QWidget &game = *openGame();
        openGame()->close();
        const WindowsInSight windows(m_main->window(), game);
        play();
        game.close();
        play();
        quit();
        QCOMPARE(windows.fewest(), 1);
    }

    void quitBringsTheMainWindowBackAsItWas()
    {
        m_main->fill(30);
        m_main->clickCell(2, 1);
        gChanged = true;
        const QStringList look = m_main->look();
        play();
        button("cmdStart").click();
        quit();
        QVERIFY(!openGame());
        QVERIFY(m_main->window().isVisible());
        QVERIFY(m_main->window().isMaximized());
        QCOMPARE(m_main->look(), look);
        QCOMPARE(m_main->markedRows(), QList<int>{2});
        QCOMPARE(gVocabList().NumWords(), Integer(30));
        QVERIFY(gChanged);
        gChanged = false;
    }

    void theCloseBoxBringsTheMainWindowBack()
    {
        m_main->fill(3);
        play();
        button("cmdStart").click();
        openGame()->close();
        QVERIFY(!openGame());
        QVERIFY(m_main->window().isVisible());
        QVERIFY(m_main->window().isMaximized());
        QCOMPARE(m_main->answers.seen(), 0);
    }

    void theGoodByeIsShownOverTheMainWindow()
    {
        m_main->fill(3);
        play();
        m_main->answers.useForm("dlgGameOver", [this](QDialog &dialog) {
            QCOMPARE(dialog.parentWidget(), &m_main->window());
            QVERIFY(!openGame());
            Controls::click(Controls::find<QPushButton>(dialog, "cmdClose"));
        });
        Controls::click(button("cmdQuit"));
        QVERIFY(m_main->window().isVisible());
    }

    void theListCanBeChangedAndPlayedAgain()
    {
        m_main->fill({u"apple"_s});
        play();
        button("cmdStart").click();
        quit();
        m_main->fill({u"bread"_s, u"cream"_s});
        play();
        QCOMPARE(gOrderSize, Integer(2));
        button("cmdStart").click();
        const QString word = gVocabList().Word();
        QVERIFY(word == u"bread"_s || word == u"cream"_s);
        Controls::type(Controls::find<QLineEdit>(*openGame(), "txtUserAnswer"), word);
        Controls::press(Qt::Key_Return);
        QCOMPARE(Controls::find<QLabel>(*openGame(), "lblScore").text(), u"4"_s);
        openGame()->close();
    }

    void aWordThatCannotBeScrambledLeavesTheEditorAsItWas()
    {
        m_main->fill({u"ab"_s});
        play();
        button("cmdStart").click();
        quit();
        QVERIFY(m_main->window().isVisible());
        m_main->fill({u"apple"_s, u"bread"_s});
        m_main->clickCell(2, 1);
        QCOMPARE(m_main->text("txtWord"), u"bread"_s);
    }

    void theMusicMenuHasThreeItems()
    {
        QVERIFY(m_main->control<QMenu>("mnuMusic").isEnabled());
        QCOMPARE(m_main->action("mnuUpbeat").text(), u"Upbeat"_s);
        QCOMPARE(m_main->action("mnuSoothing").text(), u"Soothing"_s);
        QCOMPARE(m_main->action("mnuMusicOff").text(), u"Music Off"_s);
        QCOMPARE(checked(), QStringList{u"mnuMusicOff"_s});
        QVERIFY(gMusicOff);
        QVERIFY(gUpbeatMusic);
    }

    void exactlyTheChosenMusicIsChecked()
    {
        struct Choice
        {
            const char *item;
            bool isUpbeat, isOff;
        };
        // From each item to every item.
        for (const Choice &choice :
             {Choice{"mnuUpbeat", true, false}, Choice{"mnuUpbeat", true, false},
              Choice{"mnuSoothing", false, false}, Choice{"mnuSoothing", false, false},
              Choice{"mnuMusicOff", false, true}, Choice{"mnuMusicOff", false, true},
              Choice{"mnuSoothing", false, false}, Choice{"mnuUpbeat", true, false},
              Choice{"mnuMusicOff", false, true}, Choice{"mnuUpbeat", true, false}}) {
            m_main->choose(choice.item);
            QCOMPARE(checked(), QStringList{QLatin1String(choice.item)});
            QCOMPARE(gUpbeatMusic, choice.isUpbeat);
            QCOMPARE(gMusicOff, choice.isOff);
        }
        QCOMPARE(m_sounds, QStringList());
    }

    void theChosenMusicPlaysFromStartToQuit()
    {
        m_main->fill(3);
        m_main->choose("mnuUpbeat");
        play();
        QCOMPARE(m_sounds, QStringList());
        button("cmdStart").click();
        QCOMPARE(std::exchange(m_sounds, {}), QStringList{Track1});
        quit();
        QCOMPARE(std::exchange(m_sounds, {}), QStringList{Silence});
        // The check mark stays, and the next game plays again.
        QCOMPARE(checked(), QStringList{u"mnuUpbeat"_s});
        QVERIFY(gMusicOff);
        play();
        button("cmdStart").click();
        QCOMPARE(m_sounds, QStringList{Track1});
        openGame()->close();
    }

    void endingTheProgramStopsTheMusicAndUnloadsTheGame_data()
    {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("close box") << false;
        QTest::newRow("File > Exit") << true;
    }

    void endingTheProgramStopsTheMusicAndUnloadsTheGame()
    {
        QFETCH(bool, byMenu);
        m_main->fill(3);
        m_main->choose("mnuUpbeat");
        play();
        button("cmdStart").click();
        m_sounds.clear();
        auto &timer = Controls::find<QTimer>(*openGame(), "Timer1");
        QVERIFY(timer.isActive());
        if (byMenu)
            m_main->choose("mnuExit");
        else
            m_main->window().close();
        QVERIFY(!timer.isActive());
        QVERIFY(!openGame());
        QVERIFY(!m_main->window().isVisible());
        QCOMPARE(m_sounds, QStringList{Silence});
        QCOMPARE(m_main->answers.seen(), 0);
    }

    void endingTheProgramWithoutMusicRequestsNoSound()
    {
        m_main->fill(3);
        play();
        button("cmdStart").click();
        openGame()->close();
        m_main->choose("mnuExit");
        QVERIFY(!m_main->window().isVisible());
        QCOMPARE(m_sounds, QStringList());
    }

private:
    void choosePlay(bool byMenu)
    {
        if (byMenu)
            m_main->choose("mnuPlayScramble");
        else
            m_main->click("cmdPlayScramble");
    }

    void play()
    {
        choosePlay(false);
        QVERIFY(openGame());
        QVERIFY(QTest::qWaitForWindowActive(openGame()));
    }

    void quit()
    {
        m_main->answers.useForm("dlgGameOver", [](QDialog &dialog) {
            Controls::click(Controls::find<QPushButton>(dialog, "cmdClose"));
        });
        Controls::click(button("cmdQuit"));
        QVERIFY(m_main->answers.allSeen());
    }

    // Null if no game is shown.
    [[nodiscard]] static frmTanglewit *openGame()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows)
            if (auto *game = qobject_cast<frmTanglewit *>(window); game && game->isVisible())
                return game;
        return nullptr;
    }

    [[nodiscard]] static QPushButton &button(const char *name)
    {
        return Controls::find<QPushButton>(*openGame(), name);
    }

    [[nodiscard]] QStringList checked()
    {
        QStringList checked;
        for (const char *item : {"mnuUpbeat", "mnuSoothing", "mnuMusicOff"})
            if (m_main->action(item).isChecked())
                checked += QLatin1String(item);
        return checked;
    }

    QStringList m_sounds;
    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Game_test>(argc, argv);
}

#include "frmMain_Game_test.moc"
